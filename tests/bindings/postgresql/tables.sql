-- Functions over tables: what is printed is wrong, or an error.
SET zq7.convention = 'mdy';

CREATE TABLE invoices (
  number integer PRIMARY KEY,
  typed text NOT NULL,
  amount numeric(12,2) NOT NULL,
  words text GENERATED ALWAYS AS (zq7.BahtString(amount)) STORED
);
INSERT INTO invoices (number, typed, amount)
SELECT n, (n % 28 + 1) || '/' || (n % 12 + 1) || '/' || (2400 + n % 200), n / 4.0
FROM generate_series(1, 10000) AS n;
CREATE INDEX invoices_dated ON invoices (zq7.CTDATE_by('dmy-buddhist', typed));
ANALYZE invoices;

-- The lines of a query's plan.
CREATE FUNCTION pg_temp.plan(query text) RETURNS SETOF text LANGUAGE plpgsql AS $$
BEGIN
  RETURN QUERY EXECUTE 'EXPLAIN (ANALYZE, COSTS OFF, TIMING OFF, SUMMARY OFF) ' || query;
END $$;

SELECT 'the index is not used: ' || string_agg(line, E'\n')
FROM pg_temp.plan($$SELECT * FROM invoices
  WHERE zq7.CTDATE_by('dmy-buddhist', typed) = timestamp '2024-04-04'$$) AS line
HAVING NOT bool_or(line LIKE '%Index% invoices_dated%');
SELECT 'found: ' || count(*) FROM invoices
WHERE zq7.CTDATE_by('dmy-buddhist', typed) = timestamp '2024-04-04'
HAVING count(*) <> (SELECT count(*) FROM invoices WHERE typed = '4/4/2567') OR count(*) = 0;
SELECT 'generated: ' || words FROM invoices WHERE number = 486 AND words <> 'หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์';

-- What follows a setting or the clock may not be stored.
DO $$
DECLARE
  expression text;
BEGIN
  FOREACH expression IN ARRAY ARRAY['zq7.CTDATE(typed)', 'zq7.CTPeriod(typed)'] LOOP
    BEGIN
      EXECUTE 'CREATE INDEX ON invoices (' || expression || ')';
      RAISE 'an index on %', expression;
    EXCEPTION WHEN invalid_object_definition THEN NULL;
    END;
  END LOOP;
END $$;

-- No row sees what another one left.
SELECT 'a unit stayed: ' || after FROM (
  SELECT zq7.MoneyText(n, NewUnit => 'Dollars') IS NULL, zq7.MoneyTextT(n) AS after
  FROM generate_series(1, 3) AS n) AS texts
WHERE after NOT LIKE '%บาทถ้วน';

-- Workers have the convention of the session and the clock of the transaction.
CREATE UNLOGGED TABLE amounts AS
SELECT n AS number, (n / 100.0)::numeric(12,2) AS amount,
       timestamp '2024-01-15' + n * interval '1 minute' AS moment
FROM generate_series(1, 1000000) AS n;
ANALYZE amounts;
SET parallel_setup_cost = 0;
CREATE TEMP TABLE sums (workers integer, result text);
\set query 'SELECT format(\'%s %s %s %s\', sum(hashtext(zq7.BahtString(amount))::bigint) FILTER (WHERE number % 10 = 0), sum(hashtext(zq7.FormatTDate(moment))::bigint), min(zq7.GETValidDate(\'?\')) FILTER (WHERE number % 100 = 0), max(zq7.GETValidDate(\'?\')) FILTER (WHERE number % 100 = 1)) FROM amounts'
SET max_parallel_workers_per_gather = 2;
SELECT 'no workers: ' || string_agg(line, E'\n') FROM pg_temp.plan(:'query') AS line
HAVING NOT bool_or(line LIKE '%Workers Launched: 2%');
BEGIN;
INSERT INTO sums SELECT 2, * FROM (:query) AS parallel;
SET max_parallel_workers_per_gather = 0;
INSERT INTO sums SELECT 0, * FROM (:query) AS serial;
COMMIT;
SELECT 'workers differ: ' || string_agg(result, E'\n') FROM sums
HAVING count(DISTINCT result) <> 1 OR min(result) NOT LIKE '%' || date_trunc('day', localtimestamp);
DROP TABLE amounts;

-- A query over many rows can be cancelled.
SET statement_timeout = '100ms';
DO $$
BEGIN
  PERFORM count(zq7.BahtString(n)) FROM generate_series(1, 100000000) AS n;
  RAISE 'not cancelled';
EXCEPTION WHEN query_canceled THEN NULL;
END $$;
