.load ./zq7_sqlite
CREATE TABLE invoice (
  number TEXT,
  date TEXT,
  amount REAL,
  words TEXT AS (zq7_BahtString(amount)) STORED
);
INSERT INTO invoice (number, date, amount) VALUES
  ('IV67-0001', '2024-01-31', 12345.50), ('IV67-0002', '2024-02-29', 21), ('IV67-0003', NULL, 1e15);
SELECT number, words FROM invoice;

CREATE INDEX invoice_words ON invoice (zq7_BahtString(amount, 0, 1));
SELECT number FROM invoice WHERE zq7_BahtString(amount, 0, 1) = 'Twenty one baht';

SELECT zq7_FormatTDate2(date, zq7_ZQ7DMMMBBBB()), zq7_AddMonth(date, 1) FROM invoice;

SELECT zq7_CTDATE('31/1/2567');
SELECT zq7_convention('mdy');
SELECT zq7_CTDATE('1/31/2024'), zq7_FormatTDate(zq7_CTDATE('1/31/2024'));

SELECT value FROM json_each(zq7_ArrayString2('a;b', 'c'));
