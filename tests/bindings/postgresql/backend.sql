-- The memory of a backend after 20,000 errors, and at the end of what the machine gives.
SELECT pg_backend_pid() AS pid \gset
CREATE FUNCTION pg_temp.fail(times integer) RETURNS bigint LANGUAGE plpgsql AS $$
BEGIN
  FOR n IN 1 .. times LOOP
    BEGIN
      PERFORM zq7.CTDATE_by('dmy', n || '/เดือน/' || repeat('x', 1000));
      RAISE 'no error';
    EXCEPTION WHEN invalid_text_representation THEN NULL;
    END;
  END LOOP;
  RETURN (SELECT sum(total_bytes) FROM pg_backend_memory_contexts);
END $$;
SELECT pg_temp.fail(2000) AS before \gset
\set resident `sed -n 's/^VmRSS:[^0-9]*\([0-9]*\).*/\1/p' /proc/:pid/status`
SELECT pg_temp.fail(20000) AS after \gset
\set resident_after `sed -n 's/^VmRSS:[^0-9]*\([0-9]*\).*/\1/p' /proc/:pid/status`
SELECT 'grown by ' || :after - :before || ' bytes in contexts' WHERE :after - :before > 65536;
SELECT 'grown by ' || :resident_after - :resident || ' kB' WHERE :resident_after - :resident > 1024;

-- With 64 MB more than it has, the library runs out of memory, and the backend goes on. What a long
-- text took is given back.
\set limited `size=$(sed -n 's/^VmSize:[^0-9]*\([0-9]*\).*/\1/p' /proc/:pid/status); prlimit --pid :pid --as=$(((size + 65536) * 1024)):`
DO $$
BEGIN
  PERFORM length(zq7.FormatThai('2024-01-15', repeat('MMMM ', 4000000)));
  RAISE 'enough memory';
EXCEPTION WHEN out_of_memory THEN
  IF SQLERRM NOT LIKE 'StandardObject.FormatThai%' THEN RAISE; END IF;
END $$;
SELECT 'broken' WHERE zq7.BahtString(1) <> 'หนึ่งบาทถ้วน';
\set unlimited `prlimit --pid :pid --as=unlimited:`
SELECT 'length' WHERE length(zq7.FormatThai('2024-01-15', repeat('MMMM ', 6000000))) <> 42000000;
\set resident_after `sed -n 's/^VmRSS:[^0-9]*\([0-9]*\).*/\1/p' /proc/:pid/status`
SELECT 'kept ' || :resident_after - :resident || ' kB' WHERE :resident_after - :resident > 81920;
