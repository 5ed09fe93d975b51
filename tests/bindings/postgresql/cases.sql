-- Runs calls and compares what they return as text, or raise: the number of the library's error,
-- or the SQLSTATE of one without a number.
CREATE TEMP TABLE examples (call text, result text, error integer, state text);

CREATE FUNCTION pg_temp.outcome(call text) RETURNS text LANGUAGE plpgsql AS $$
DECLARE
  value text;
  state text;
  detail text;
BEGIN
  EXECUTE 'SELECT (' || call || ')::text' INTO value;
  RETURN coalesce(value, 'NULL');
EXCEPTION WHEN OTHERS THEN
  GET STACKED DIAGNOSTICS state = RETURNED_SQLSTATE, detail = PG_EXCEPTION_DETAIL;
  RETURN coalesce('error ' || substring(detail FROM '^run-time error (\d+) in \w+\.\w+'), state);
END $$;

CREATE TEMP VIEW mismatches AS
SELECT call, coalesce('error ' || error, state, pg_temp.outcome(result)) AS wanted,
       pg_temp.outcome(call) AS got
FROM examples
WHERE pg_temp.outcome(call) <> coalesce('error ' || error, state, pg_temp.outcome(result))
   OR result IS NULL AND error IS NULL AND state IS NULL;
