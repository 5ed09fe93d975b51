-- What the examples do not show: conversions of arguments, SQLSTATEs, the clock, the convention.
SET zq7.convention = 'dmy-buddhist';
SET extra_float_digits = 1;

-- The SQLSTATE and the message of a call that raises.
CREATE FUNCTION pg_temp.raised(call text) RETURNS text LANGUAGE plpgsql AS $$
DECLARE
  detail text;
BEGIN
  EXECUTE 'SELECT ' || call;
  RETURN 'nothing';
EXCEPTION WHEN OTHERS THEN
  GET STACKED DIAGNOSTICS detail = PG_EXCEPTION_DETAIL;
  RETURN SQLSTATE || ' ' || SQLERRM || ' | ' || detail;
END $$;

INSERT INTO examples (call, result, error, state)
-- Every number becomes a double by itself; names of parameters fold.
SELECT 'zq7.BahtString(' || amount || ')', quote_literal(zq7.BahtString(121.5::float8)),
       NULL::integer, NULL
FROM unnest(ARRAY['121.50', '121.5::numeric(12,2)', '121.5::real', '1215e-1', 'indouble => 121.5'])
  AS amount
UNION ALL
SELECT 'zq7.BahtString(7::' || type || ', useEnglish => true)', '''Seven baht''', NULL, NULL
FROM unnest(ARRAY['smallint', 'integer', 'bigint']) AS type
UNION ALL VALUES
-- NULL
('zq7.BahtString(NULL)', 'NULL', NULL, NULL),
('zq7.CTDATE_by(NULL, ''1/1/2567'')', 'NULL', NULL, NULL),
('zq7.Null2Zero(NULL)', '0::float8', NULL, NULL),
('zq7.Null2Zero()', '0::float8', NULL, NULL),
('zq7.Null2Zero(2.5)', '2.5::float8', NULL, NULL),
-- 16 bits and bytes are integers that are checked.
('zq7.Hex2Dec(-32769)', NULL, 6, NULL),
('zq7.Hex2Dec(32768)', NULL, 6, NULL),
('zq7.BitRead(1, 256)', NULL, 6, NULL),
('zq7.BitRead(1, -1)', NULL, 6, NULL),
('zq7.StrSng(''0.1'')', '0.1::real', NULL, NULL),
('zq7.FormatCondition(1e300, 1, 1, 1, 1)', NULL, 6, NULL),
-- Currency is exact.
('zq7.FixMoneyDecimal(922337203685477.5807, false)', '922337203685477.0000', NULL, NULL),
('zq7.FixMoneyDecimal(922337203685477.5808, false)', NULL, 6, NULL),
('zq7.FixMoneyDecimal(''NaN'', false)', NULL, 6, NULL),
('zq7.FixMoneyDecimal(''-Infinity'', false)', NULL, 6, NULL),
-- Dates, and every minute of a day
('zq7.AddMonth(date ''2024-01-31'', 1)', 'timestamp ''2024-02-29''', NULL, NULL),
('zq7.FormatQueryTime(''2024-01-15 23:59:59.999999'')', '''2024-01-15 23:59:59''', NULL, NULL),
('zq7.FormatQueryTime(''1850-07-04 07:08:09'')', '''1850-07-04 07:08:09''', NULL, NULL),
('zq7.FormatQueryTime(''0100-01-01 00:00:01'')', '''0100-01-01 00:00:01''', NULL, NULL),
('zq7.FormatQueryTime(''9999-12-31 23:59:58'')', '''9456-12-31 23:59:58''', NULL, NULL),
('(SELECT count(*) FROM generate_series(timestamp ''1899-12-30'', ''1899-12-30 23:59'', ''1 minute'') AS minute '
 'WHERE zq7.CTTime(to_char(minute, ''HH24MI'')) <> minute)', '0', NULL, NULL),
('zq7.AddMonth(''10000-01-01'', 0)', NULL, NULL, '22008'),
('zq7.AddMonth(''0099-12-31 23:59:59'', 0)', NULL, NULL, '22008'),
('zq7.AddMonth(''infinity'', 0)', NULL, NULL, '22008'),
('zq7.AddMonth(''-infinity'', 0)', NULL, NULL, '22008'),
-- An argument without a default may be left out.
('zq7.FormatTimeleft_by(''dmy-buddhist'', 1) = zq7.FormatTimeleft(1)', 'true', NULL, NULL),
('zq7.FormatTimeleft(1, false) <> zq7.FormatTimeleft(1, true)', 'true', NULL, NULL),
-- Texts
('zq7.ReverseString(''ก🐎a'')', NULL, NULL, '22021'),
('zq7.ReverseString(repeat(''ab'', 100000))', 'repeat(''ba'', 100000)', NULL, NULL),
('zq7.TrimSpaceToOne(''🐎  ก'')', '''🐎 ก''', NULL, NULL),
('zq7.FormatThai(''2024-01-15'', repeat(''MMMM '', 15000000))', NULL, NULL, '54000'),
-- The clock is the transaction's, in the zone of the session.
('zq7.CTYEAR()', 'extract(year FROM localtimestamp)::integer + 543', NULL, NULL),
('zq7.GETValidDate(''?'')', 'date_trunc(''day'', localtimestamp)', NULL, NULL),
('zq7.CDATE2000(''1/2'')', 'make_timestamp(extract(year FROM now())::integer + 543, 2, 1, 0, 0, 0)', NULL,
 NULL),
('zq7.IsTDateTime(''15/1/2567 9:30'')', 'true', NULL, NULL),
('zq7.GETDateFromTextYYYYMMDD(''2567-01-15'')', 'timestamp ''2024-01-15''', NULL, NULL),
('zq7.CTPeriod(''2567/3'')', 'timestamp ''2024-03-01''', NULL, NULL),
('zq7.TimeLeftDateTime(localtimestamp - interval ''1 hour'', 1, 2)', 'timestamp ''1899-12-30 01:00''',
 NULL, NULL),
('zq7.TimeLeftText(localtimestamp - interval ''1 hour'', 1, 2, false)',
 'zq7.FormatTimeleft(1 / 24.0, false)', NULL, NULL),
-- The convention
('zq7.CTDATE_by(''dmy'', ''1/2/2024'')', 'timestamp ''2024-02-01''', NULL, NULL),
('zq7.CTDATE_by(''mdy'', ''1/2/2024'')', 'timestamp ''2024-01-02''', NULL, NULL),
('zq7.CTDATE(''1/2/2567'')', 'timestamp ''2024-02-01''', NULL, NULL),
('zq7.CTDATE_by(''DMY'', ''1/2/2024'')', NULL, 5, NULL),
-- SQLSTATEs and what they say
('pg_temp.raised($$zq7.CTDATE_by(''เดือน'', ''1/2/2024'')$$)', '''22023 StandardObject.CTDATE: unknown date '
 'convention, not one of mdy, dmy, mdy-buddhist, dmy-buddhist (error 5): convention: "เดือน" | '
 'run-time error 5 in StandardObject.CTDATE, parameter convention''', NULL, NULL),
('pg_temp.raised($$zq7.CTDATE(''31/2/2567'')$$)', '''22P02 StandardObject.CTDATE: type mismatch (error 13): '
 'iText: "31/2/2567" | run-time error 13 in StandardObject.CTDATE, parameter iText''', NULL, NULL),
('left(pg_temp.raised($$zq7.Hex2Dec(32768)$$), 5)', '''22003''', NULL, NULL),
('left(pg_temp.raised($$zq7.EncryptBS(''a'', '''')$$), 5)', '''22012''', NULL, NULL),
('left(pg_temp.raised($$zq7.GridValueObject_GetValue(0, 0)$$), 5)', '''2202E''', NULL, NULL),
('left(pg_temp.raised($$zq7.SetFirst(2147483647, 2147483647, 0, 0)$$), 5)', '''53200''', NULL, NULL),
('pg_temp.raised($$zq7.AddMonth(''infinity'')$$)', '''22008 StandardObject.AddMonth: a date outside '
 '0100-01-01 to 9999-12-31: "infinity" | in StandardObject.AddMonth, parameter InDate''', NULL, NULL),
('pg_temp.raised($$set_config(''zq7.convention'', ''ymd'', false)$$)',
 '''22023 invalid value for parameter "zq7.convention": "ymd" | ''', NULL, NULL),
-- Nothing is volatile, and no worker is kept from any function.
('(SELECT string_agg(oid::regproc::text, '','') FROM pg_proc WHERE pronamespace = ''zq7''::regnamespace '
 'AND (provolatile = ''v'' OR proparallel <> ''s'' OR pronargs > 0 AND proisstrict = (proname = ''null2zero'')))',
 'NULL', NULL, NULL);
