-- The queries of docs/postgresql.md; queries.txt is what they print.
SELECT zq7.BahtString(121.50);
SELECT zq7.MoneyText(121.50, useEnglish => true);
SELECT zq7.FormatTDate2(date '2024-01-15', zq7.ZQ7DMMMBBBB());
SELECT zq7.AddMonth(zq7.CTDATE('31/1/2567'), 1);

SET zq7.convention = 'mdy';
SELECT zq7.CTDATE('1/31/2024');
SELECT zq7.CTDATE_by('dmy-buddhist', '31/1/2567');

CREATE TABLE bills (
  typed text,
  amount numeric(12,2),
  words text GENERATED ALWAYS AS (zq7.BahtString(amount)) STORED
);
CREATE INDEX ON bills (zq7.CTDATE_by('dmy-buddhist', typed));
INSERT INTO bills VALUES ('15/1/2567', 1234.56);
SELECT words FROM bills WHERE zq7.CTDATE_by('dmy-buddhist', typed) = date '2024-01-15';

DO $$
BEGIN
  PERFORM zq7.CTDATE_by('dmy-buddhist', '31/2/2567');
EXCEPTION WHEN invalid_text_representation THEN
  RAISE WARNING '%', SQLERRM;
END $$;
