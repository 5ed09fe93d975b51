-- In a database whose encoding is not UTF-8 but Windows-874.
INSERT INTO examples (call, result, error, state) VALUES
('zq7.BahtString(121.5)', '''หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์''', NULL, NULL),
('octet_length(zq7.BahtString(121.5))', '34', NULL, NULL),
('zq7.ReverseString(''กขค€'')', '''€คขก''', NULL, NULL),
('zq7.GETMonthTextArray(true, true)', 'array_prepend('''', ARRAY[''มกราคม'', ''กุมภาพันธ์'', ''มีนาคม'', '
 '''เมษายน'', ''พฤษภาคม'', ''มิถุนายน'', ''กรกฏาคม'', ''สิงหาคม'', ''กันยายน'', ''ตุลาคม'', ''พฤศจิกายน'', ''ธันวาคม''])',
 NULL, NULL),
('zq7.FormatTDate_by(''dmy-buddhist'', ''2024-01-15'')', '''15/1/2567''', NULL, NULL),
('zq7.CTDATE(''๑/๑'')', NULL, 13, NULL),
-- A cipher makes characters that the encoding lacks.
('zq7.EncryptBS(''กขabcXYZ'', ''p2'')', NULL, NULL, '22021');
