-- Made by scripts/pages from the catalogue.
\echo Use "CREATE EXTENSION zq7standard" to load this file. \quit

CREATE OR REPLACE FUNCTION zq7.MoneyText("indouble" double precision, "usebreak" boolean DEFAULT false, "useenglish" boolean DEFAULT false, "newunit" text DEFAULT '', "newsubunit" text DEFAULT '')
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BahtStringObject_MoneyText';
COMMENT ON FUNCTION zq7.MoneyText(double precision, boolean, boolean, text, text) IS
  'An amount in words, in any currency.';

CREATE OR REPLACE FUNCTION zq7.BahtString("indouble" double precision, "usebreak" boolean DEFAULT false, "useenglish" boolean DEFAULT false, "newunit" text DEFAULT '', "newsubunit" text DEFAULT '')
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BahtStringObject_BahtString';
COMMENT ON FUNCTION zq7.BahtString(double precision, boolean, boolean, text, text) IS
  'The same as `MoneyText`.';

CREATE OR REPLACE FUNCTION zq7.MoneyTextT("indouble" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_BahtStringObject_MoneyTextT';
COMMENT ON FUNCTION zq7.MoneyTextT(double precision) IS
  'An amount in Thai words with the unit words of the last `MoneyText`.';

CREATE OR REPLACE FUNCTION zq7.BahtStringT("indouble" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_BahtStringObject_BahtStringT';
COMMENT ON FUNCTION zq7.BahtStringT(double precision) IS
  'The same as `MoneyTextT`.';

CREATE OR REPLACE FUNCTION zq7.MoneyTextE("indouble" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BahtStringObject_MoneyTextE';
COMMENT ON FUNCTION zq7.MoneyTextE(double precision) IS
  'An amount in English words with baht and satang.';

CREATE OR REPLACE FUNCTION zq7.BahtStringE("indouble" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BahtStringObject_BahtStringE';
COMMENT ON FUNCTION zq7.BahtStringE(double precision) IS
  'The same as `MoneyTextE`.';

CREATE OR REPLACE FUNCTION zq7.BahtStringObject_MonthText("monthnumber" integer, "fulltext" boolean, "usethai" boolean)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BahtStringObject_MonthText';
COMMENT ON FUNCTION zq7.BahtStringObject_MonthText(integer, boolean, boolean) IS
  'Always the empty text.';

CREATE OR REPLACE FUNCTION zq7.About()
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BahtStringObject_About';
COMMENT ON FUNCTION zq7.About() IS
  'Who made the library.';

CREATE OR REPLACE FUNCTION zq7.Bin2Oct("binstring" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Bin2Oct';
COMMENT ON FUNCTION zq7.Bin2Oct(text) IS
  'A binary text as octal digits.';

CREATE OR REPLACE FUNCTION zq7.Bin2hex("binstring" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Bin2hex';
COMMENT ON FUNCTION zq7.Bin2hex(text) IS
  'A binary text as hexadecimal digits.';

CREATE OR REPLACE FUNCTION zq7.Bin2Dec("binstring" text)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Bin2Dec';
COMMENT ON FUNCTION zq7.Bin2Dec(text) IS
  'The number of a binary text.';

CREATE OR REPLACE FUNCTION zq7.Oct2Bin("octstring" text, "keepzerofront" boolean DEFAULT false)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Oct2Bin';
COMMENT ON FUNCTION zq7.Oct2Bin(text, boolean) IS
  'Octal digits as binary text.';

CREATE OR REPLACE FUNCTION zq7.Hex2Bin("hexstring" text, "keepzerofront" boolean DEFAULT false)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Hex2Bin';
COMMENT ON FUNCTION zq7.Hex2Bin(text, boolean) IS
  'Hexadecimal digits as binary text.';

CREATE OR REPLACE FUNCTION zq7.Oct2hex("octstring" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Oct2hex';
COMMENT ON FUNCTION zq7.Oct2hex(text) IS
  'Octal digits as hexadecimal digits.';

CREATE OR REPLACE FUNCTION zq7.Hex2Oct("hexstring" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Hex2Oct';
COMMENT ON FUNCTION zq7.Hex2Oct(text) IS
  'Hexadecimal digits as octal digits.';

CREATE OR REPLACE FUNCTION zq7.Oct2Dec("octstring" integer)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Oct2Dec';
COMMENT ON FUNCTION zq7.Oct2Dec(integer) IS
  'Decimal digits read as an octal number.';

CREATE OR REPLACE FUNCTION zq7.Hex2Dec("hexstring" integer)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Hex2Dec';
COMMENT ON FUNCTION zq7.Hex2Dec(integer) IS
  'Decimal digits read as a hexadecimal number.';

CREATE OR REPLACE FUNCTION zq7.Hex2Dec2("hexstring" text)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Hex2Dec2';
COMMENT ON FUNCTION zq7.Hex2Dec2(text) IS
  'The number of hexadecimal digits.';

CREATE OR REPLACE FUNCTION zq7.Dec2Oct("decnumber" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Dec2Oct';
COMMENT ON FUNCTION zq7.Dec2Oct(integer) IS
  'A number as octal digits.';

CREATE OR REPLACE FUNCTION zq7.Dec2hex("decnumber" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Dec2hex';
COMMENT ON FUNCTION zq7.Dec2hex(integer) IS
  'A number as hexadecimal digits.';

CREATE OR REPLACE FUNCTION zq7.Dec2Bin("dec" integer, "keepzerofront" boolean DEFAULT false)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Dec2Bin';
COMMENT ON FUNCTION zq7.Dec2Bin(integer, boolean) IS
  'A number as binary text, three bits a group.';

CREATE OR REPLACE FUNCTION zq7.Base26To10("base26" text)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Base26To10';
COMMENT ON FUNCTION zq7.Base26To10(text) IS
  'The number of a spreadsheet column.';

CREATE OR REPLACE FUNCTION zq7.Base10To26("colnum" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_Base10To26';
COMMENT ON FUNCTION zq7.Base10To26(integer) IS
  'The letters of a spreadsheet column.';

CREATE OR REPLACE FUNCTION zq7.BitRead("decnumber" integer, "bitdigitformback" integer)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_BitRead';
COMMENT ON FUNCTION zq7.BitRead(integer, integer) IS
  'Whether a bit is set; bits count from the right, from 1.';

CREATE OR REPLACE FUNCTION zq7.BitWrite("decnumber" integer, "bitdigitformback" integer, "newvalue" integer)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_BitWrite';
COMMENT ON FUNCTION zq7.BitWrite(integer, integer, integer) IS
  'A number with a bit set by 1 or cleared by any other value.';

CREATE OR REPLACE FUNCTION zq7.BitSwitch("decnumber" integer, "bitdigitformback" integer)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_BitByteObject_BitSwitch';
COMMENT ON FUNCTION zq7.BitSwitch(integer, integer) IS
  'A number with a bit cleared.';

CREATE OR REPLACE FUNCTION zq7.FileName("full_name" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_DiskObject_FileName';
COMMENT ON FUNCTION zq7.FileName(text) IS
  'The text after the last "\".';

CREATE OR REPLACE FUNCTION zq7.Pathname("full_name" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_DiskObject_Pathname';
COMMENT ON FUNCTION zq7.Pathname(text) IS
  'The text before the last "\".';

CREATE OR REPLACE FUNCTION zq7.trimPath("path" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_DiskObject_trimPath';
COMMENT ON FUNCTION zq7.trimPath(text) IS
  'A path without the "\" at its end.';

CREATE OR REPLACE FUNCTION zq7.ScaleFullPath("infullpath" text, "maxlen" integer DEFAULT 0)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_DiskObject_ScaleFullPath';
COMMENT ON FUNCTION zq7.ScaleFullPath(text, integer) IS
  'A path shortened for display.';

CREATE OR REPLACE FUNCTION zq7.SetFirst("rows" integer, "cols" integer, "fixedcols" integer, "fixedrows" integer)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_SetFirst';
COMMENT ON FUNCTION zq7.SetFirst(integer, integer, integer, integer) IS
  'Sets the columns of a new grid, and its headings.';

CREATE OR REPLACE FUNCTION zq7.SetRows("rows" integer)
  RETURNS void LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_SetRows';
COMMENT ON FUNCTION zq7.SetRows(integer) IS
  'Sets the number of rows.';

CREATE OR REPLACE FUNCTION zq7.SetCols("cols" integer)
  RETURNS void LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_SetCols';
COMMENT ON FUNCTION zq7.SetCols(integer) IS
  'Sets the number of columns, once.';

CREATE OR REPLACE FUNCTION zq7.GridValueObject_Setvalue("row" integer, "col" integer, "value" double precision)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_Setvalue';
COMMENT ON FUNCTION zq7.GridValueObject_Setvalue(integer, integer, double precision) IS
  'Stores a number in a cell and tells the listeners.';

CREATE OR REPLACE FUNCTION zq7.GridValueObject_GetValue("row" integer, "col" integer)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_GetValue';
COMMENT ON FUNCTION zq7.GridValueObject_GetValue(integer, integer) IS
  'The number in a cell.';

CREATE OR REPLACE FUNCTION zq7.RemaveItem("row" integer)
  RETURNS void LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_RemaveItem';
COMMENT ON FUNCTION zq7.RemaveItem(integer) IS
  'Deletes a row.';

CREATE OR REPLACE FUNCTION zq7.ResetRow("row" integer)
  RETURNS void LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_ResetRow';
COMMENT ON FUNCTION zq7.ResetRow(integer) IS
  'Sets the data of a row to 0.';

CREATE OR REPLACE FUNCTION zq7.Clear()
  RETURNS void LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_Clear';
COMMENT ON FUNCTION zq7.Clear() IS
  'Leaves the headings and one blank row.';

CREATE OR REPLACE FUNCTION zq7.SumCol("col" integer)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_SumCol';
COMMENT ON FUNCTION zq7.SumCol(integer) IS
  'The sum of a column''s data.';

CREATE OR REPLACE FUNCTION zq7.SumRow("row" integer)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 40
  AS 'MODULE_PATHNAME', 'zq7_GridValueObject_SumRow';
COMMENT ON FUNCTION zq7.SumRow(integer) IS
  'The sum of a row''s data.';

CREATE OR REPLACE FUNCTION zq7.GETPaperSizeText("papersize" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_PrintObject_GETPaperSizeText';
COMMENT ON FUNCTION zq7.GETPaperSizeText(integer) IS
  'The name of a paper.';

CREATE OR REPLACE FUNCTION zq7.GETPaperBinText("paperbin" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_PrintObject_GETPaperBinText';
COMMENT ON FUNCTION zq7.GETPaperBinText(integer) IS
  'The name of a bin.';

CREATE OR REPLACE FUNCTION zq7.GETPaperOrientationText("orientation" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_PrintObject_GETPaperOrientationText';
COMMENT ON FUNCTION zq7.GETPaperOrientationText(integer) IS
  '"Landscape" or "Portrait".';

CREATE OR REPLACE FUNCTION zq7.RegistryObject_Encrypt("stringinput" text, "password" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_RegistryObject_Encrypt';
COMMENT ON FUNCTION zq7.RegistryObject_Encrypt(text, text) IS
  'Hides a text from a glance, under a password.';

CREATE OR REPLACE FUNCTION zq7.RegistryObject_Decrypt("encryptedtextinput" text, "password" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_RegistryObject_Decrypt';
COMMENT ON FUNCTION zq7.RegistryObject_Decrypt(text, text) IS
  'Undoes `Encrypt`.';

CREATE OR REPLACE FUNCTION zq7.GetEraDif()
  RETURNS integer LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GetEraDif';
COMMENT ON FUNCTION zq7.GetEraDif() IS
  'The system''s year minus the Gregorian year: 543 or 0.';

CREATE OR REPLACE FUNCTION zq7.GetEraDif_by("convention" text)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GetEraDif_by';
COMMENT ON FUNCTION zq7.GetEraDif_by(text) IS
  'The system''s year minus the Gregorian year: 543 or 0.';

CREATE OR REPLACE FUNCTION zq7.CTYEAR()
  RETURNS integer LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_CTYEAR';
COMMENT ON FUNCTION zq7.CTYEAR() IS
  'The current year in the system''s era.';

CREATE OR REPLACE FUNCTION zq7.Year2000("indate" timestamp)
  RETURNS integer LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Year2000';
COMMENT ON FUNCTION zq7.Year2000(timestamp) IS
  'The year of a date in the system''s era.';

CREATE OR REPLACE FUNCTION zq7.Year2000_by("convention" text, "indate" timestamp)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Year2000_by';
COMMENT ON FUNCTION zq7.Year2000_by(text, timestamp) IS
  'The year of a date in the system''s era.';

CREATE OR REPLACE FUNCTION zq7.GetDateFormat()
  RETURNS integer LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GetDateFormat';
COMMENT ON FUNCTION zq7.GetDateFormat() IS
  'The code of the system''s date layout, 1 to 4.';

CREATE OR REPLACE FUNCTION zq7.GetDateFormat_by("convention" text)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GetDateFormat_by';
COMMENT ON FUNCTION zq7.GetDateFormat_by(text) IS
  'The code of the system''s date layout, 1 to 4.';

CREATE OR REPLACE FUNCTION zq7.GetDateFormatString("dateformat" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GetDateFormatString';
COMMENT ON FUNCTION zq7.GetDateFormatString(integer) IS
  'The date layout of a code, "m/d/yyyy" or "d/m/yyyy".';

CREATE OR REPLACE FUNCTION zq7.GETBlankDate()
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETBlankDate';
COMMENT ON FUNCTION zq7.GETBlankDate() IS
  'The date that stands for no date, 3333-03-03.';

CREATE OR REPLACE FUNCTION zq7.GETMAXDate()
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETMAXDate';
COMMENT ON FUNCTION zq7.GETMAXDate() IS
  'The largest date, 3333-03-03.';

CREATE OR REPLACE FUNCTION zq7.isBlankDate("idate" timestamp)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_isBlankDate';
COMMENT ON FUNCTION zq7.isBlankDate(timestamp) IS
  'Whether a date stands for no date.';

CREATE OR REPLACE FUNCTION zq7.TrimDate("idate" timestamp)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_TrimDate';
COMMENT ON FUNCTION zq7.TrimDate(timestamp) IS
  'The same day at 00:00.';

CREATE OR REPLACE FUNCTION zq7.DAYTIME2DAY("iddhhmmtext" text)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_DAYTIME2DAY';
COMMENT ON FUNCTION zq7.DAYTIME2DAY(text) IS
  'Reads "D:H:M" as a number of days.';

CREATE OR REPLACE FUNCTION zq7.DAY2DAYTIME("iday" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_DAY2DAYTIME';
COMMENT ON FUNCTION zq7.DAY2DAYTIME(double precision) IS
  'Writes a number of days as "D:HH:MM".';

CREATE OR REPLACE FUNCTION zq7.FormatHour("ihour" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatHour';
COMMENT ON FUNCTION zq7.FormatHour(double precision) IS
  'Writes a number of hours as "H:MM".';

CREATE OR REPLACE FUNCTION zq7.isDayTime("idaytimetext" text, "acceptzerovalue" boolean DEFAULT false)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_isDayTime';
COMMENT ON FUNCTION zq7.isDayTime(text, boolean) IS
  'Whether a "D:H:M" text amounts to anything but zero.';

CREATE OR REPLACE FUNCTION zq7.CTDATE("itext" text, "nousedbackwardsupportonly" boolean DEFAULT false)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_CTDATE';
COMMENT ON FUNCTION zq7.CTDATE(text, boolean) IS
  'Reads a date as a user types it in a date box.';

CREATE OR REPLACE FUNCTION zq7.CTDATE_by("convention" text, "itext" text, "nousedbackwardsupportonly" boolean DEFAULT false)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_CTDATE_by';
COMMENT ON FUNCTION zq7.CTDATE_by(text, text, boolean) IS
  'Reads a date as a user types it in a date box.';

CREATE OR REPLACE FUNCTION zq7.IsTDate("itext" text, "nousedbackwardsupportonly" boolean DEFAULT false)
  RETURNS boolean LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_IsTDate';
COMMENT ON FUNCTION zq7.IsTDate(text, boolean) IS
  'Whether a text is a date with a year of four digits.';

CREATE OR REPLACE FUNCTION zq7.IsTDate_by("convention" text, "itext" text, "nousedbackwardsupportonly" boolean DEFAULT false)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_IsTDate_by';
COMMENT ON FUNCTION zq7.IsTDate_by(text, text, boolean) IS
  'Whether a text is a date with a year of four digits.';

CREATE OR REPLACE FUNCTION zq7.CDATE2000("itext" text)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_CDATE2000';
COMMENT ON FUNCTION zq7.CDATE2000(text) IS
  'Reads any date and adds the era difference to its year.';

CREATE OR REPLACE FUNCTION zq7.GETValidDate("datestring" text)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETValidDate';
COMMENT ON FUNCTION zq7.GETValidDate(text) IS
  'Reads a date; today if the text is not one.';

CREATE OR REPLACE FUNCTION zq7.IsTDateTime("itext" text)
  RETURNS boolean LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_IsTDateTime';
COMMENT ON FUNCTION zq7.IsTDateTime(text) IS
  'Whether a text is a date, a time or both.';

CREATE OR REPLACE FUNCTION zq7.isMounthYear("inmmyyyy" text)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_isMounthYear';
COMMENT ON FUNCTION zq7.isMounthYear(text) IS
  'Whether a text is a month and a year, "MM/YYYY".';

CREATE OR REPLACE FUNCTION zq7.GETDateFromTextYYYYMMDD("idateyyyy_mm_dd" text)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETDateFromTextYYYYMMDD';
COMMENT ON FUNCTION zq7.GETDateFromTextYYYYMMDD(text) IS
  'Reads the date in a sortable key, year first.';

CREATE OR REPLACE FUNCTION zq7.CTPeriod("itext" text)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_CTPeriod';
COMMENT ON FUNCTION zq7.CTPeriod(text) IS
  'The first day of a month typed year first.';

CREATE OR REPLACE FUNCTION zq7.IsTPeriod("itext" text)
  RETURNS boolean LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_IsTPeriod';
COMMENT ON FUNCTION zq7.IsTPeriod(text) IS
  'Whether `CTPeriod` reads a text as it stands.';

CREATE OR REPLACE FUNCTION zq7.IsTPeriod_by("convention" text, "itext" text)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_IsTPeriod_by';
COMMENT ON FUNCTION zq7.IsTPeriod_by(text, text) IS
  'Whether `CTPeriod` reads a text as it stands.';

CREATE OR REPLACE FUNCTION zq7.CTTime("itimetext" text)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_CTTime';
COMMENT ON FUNCTION zq7.CTTime(text) IS
  'The time of day of four digits "HHMM".';

CREATE OR REPLACE FUNCTION zq7.isTTime("itimetext" text)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_isTTime';
COMMENT ON FUNCTION zq7.isTTime(text) IS
  'Whether a text is four digits "HHMM".';

CREATE OR REPLACE FUNCTION zq7.Str2AddDay("intime" text, "startvalue" integer DEFAULT 0)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Str2AddDay';
COMMENT ON FUNCTION zq7.Str2AddDay(text, integer) IS
  'The day that a clock time past midnight carries over to.';

CREATE OR REPLACE FUNCTION zq7.Str2TIME("intime" text)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Str2TIME';
COMMENT ON FUNCTION zq7.Str2TIME(text) IS
  'Reads a clock time such as "9:30" or "9:30 PM".';

CREATE OR REPLACE FUNCTION zq7.CTHour("itimetext" text)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_CTHour';
COMMENT ON FUNCTION zq7.CTHour(text) IS
  'Reads "H:M" as hours.';

CREATE OR REPLACE FUNCTION zq7.isHour("ihourtext" text, "acceptzerovalue" boolean DEFAULT false)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_isHour';
COMMENT ON FUNCTION zq7.isHour(text, boolean) IS
  'Whether an "H:M" text amounts to anything but zero.';

CREATE OR REPLACE FUNCTION zq7.GETMonthTextArray("fulltext" boolean, "usethai" boolean)
  RETURNS text[] LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETMonthTextArray';
COMMENT ON FUNCTION zq7.GETMonthTextArray(boolean, boolean) IS
  'The 12 month names; element 0 is empty.';

CREATE OR REPLACE FUNCTION zq7.GETDayTextArray("fulltext" boolean, "usethai" boolean)
  RETURNS text[] LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETDayTextArray';
COMMENT ON FUNCTION zq7.GETDayTextArray(boolean, boolean) IS
  'The 7 day names from Sunday; element 0 is empty.';

CREATE OR REPLACE FUNCTION zq7.MonthText("monthnumber" integer, "fulltext" boolean, "usethai" boolean)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_MonthText';
COMMENT ON FUNCTION zq7.MonthText(integer, boolean, boolean) IS
  'The name of a month.';

CREATE OR REPLACE FUNCTION zq7.DayText("idate" timestamp, "fulltext" boolean, "usethai" boolean)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_DayText';
COMMENT ON FUNCTION zq7.DayText(timestamp, boolean, boolean) IS
  'The name of a date''s weekday.';

CREATE OR REPLACE FUNCTION zq7.MonthYearTextFull("indate" timestamp)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_MonthYearTextFull';
COMMENT ON FUNCTION zq7.MonthYearTextFull(timestamp) IS
  'The month and year of a date in English.';

CREATE OR REPLACE FUNCTION zq7.FormatTDate("indate" timestamp, "zeroleader" boolean DEFAULT false)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTDate';
COMMENT ON FUNCTION zq7.FormatTDate(timestamp, boolean) IS
  'Writes a date in the system''s own layout.';

CREATE OR REPLACE FUNCTION zq7.FormatTDate_by("convention" text, "indate" timestamp, "zeroleader" boolean DEFAULT false)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTDate_by';
COMMENT ON FUNCTION zq7.FormatTDate_by(text, timestamp, boolean) IS
  'Writes a date in the system''s own layout.';

CREATE OR REPLACE FUNCTION zq7.FormatTDate2("indate" timestamp, "datetype" integer, "zeroleader" boolean DEFAULT false)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTDate2';
COMMENT ON FUNCTION zq7.FormatTDate2(timestamp, integer, boolean) IS
  'Writes a date in one of the layouts of `CTDateType`.';

CREATE OR REPLACE FUNCTION zq7.FormatTDate2_by("convention" text, "indate" timestamp, "datetype" integer, "zeroleader" boolean DEFAULT false)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTDate2_by';
COMMENT ON FUNCTION zq7.FormatTDate2_by(text, timestamp, integer, boolean) IS
  'Writes a date in one of the layouts of `CTDateType`.';

CREATE OR REPLACE FUNCTION zq7.FormatTDateTime("indate" timestamp, "zeroleader" boolean DEFAULT false)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTDateTime';
COMMENT ON FUNCTION zq7.FormatTDateTime(timestamp, boolean) IS
  'Writes a date in the system''s own layout and the time of day.';

CREATE OR REPLACE FUNCTION zq7.FormatTDateTime_by("convention" text, "indate" timestamp, "zeroleader" boolean DEFAULT false)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTDateTime_by';
COMMENT ON FUNCTION zq7.FormatTDateTime_by(text, timestamp, boolean) IS
  'Writes a date in the system''s own layout and the time of day.';

CREATE OR REPLACE FUNCTION zq7.Format2000("indate" timestamp, "formattext" text DEFAULT 'd/m/yyyy')
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Format2000';
COMMENT ON FUNCTION zq7.Format2000(timestamp, text) IS
  'Writes a date by a pattern, in the system''s era and language.';

CREATE OR REPLACE FUNCTION zq7.Format2000_by("convention" text, "indate" timestamp, "formattext" text DEFAULT 'd/m/yyyy')
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Format2000_by';
COMMENT ON FUNCTION zq7.Format2000_by(text, timestamp, text) IS
  'Writes a date by a pattern, in the system''s era and language.';

CREATE OR REPLACE FUNCTION zq7.FormatThai("indate" timestamp, "formattext" text DEFAULT 'd mmmm bbbb')
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatThai';
COMMENT ON FUNCTION zq7.FormatThai(timestamp, text) IS
  'Writes a date by a pattern, with Thai names and Buddhist years.';

CREATE OR REPLACE FUNCTION zq7.FormatThaiRevere("indate" timestamp)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatThaiRevere';
COMMENT ON FUNCTION zq7.FormatThaiRevere(timestamp) IS
  'Writes the Thai date reversed, for sorting.';

CREATE OR REPLACE FUNCTION zq7.FormatEnglish("indate" timestamp, "formattext" text DEFAULT 'd mmmm yyyy')
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatEnglish';
COMMENT ON FUNCTION zq7.FormatEnglish(timestamp, text) IS
  'Writes a date by a pattern, with English names and Gregorian years.';

CREATE OR REPLACE FUNCTION zq7.FormatQuery("indate" timestamp)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatQuery';
COMMENT ON FUNCTION zq7.FormatQuery(timestamp) IS
  'Writes a date for a database query; NULL for a blank date.';

CREATE OR REPLACE FUNCTION zq7.FormatQueryTime("indate" timestamp)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatQueryTime';
COMMENT ON FUNCTION zq7.FormatQueryTime(timestamp) IS
  'Writes a date and its time for a database query; NULL for a blank date.';

CREATE OR REPLACE FUNCTION zq7.FormatTime("indate" timestamp)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTime';
COMMENT ON FUNCTION zq7.FormatTime(timestamp) IS
  'Writes the time of day as "HH:MM".';

CREATE OR REPLACE FUNCTION zq7.FormatTime2("indate" timestamp, "formattext" text DEFAULT 'hh:nn:ss')
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTime2';
COMMENT ON FUNCTION zq7.FormatTime2(timestamp, text) IS
  'Writes the time of day by a pattern.';

CREATE OR REPLACE FUNCTION zq7.FormatTime2_by("convention" text, "indate" timestamp, "formattext" text DEFAULT 'hh:nn:ss')
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTime2_by';
COMMENT ON FUNCTION zq7.FormatTime2_by(text, timestamp, text) IS
  'Writes the time of day by a pattern.';

CREATE OR REPLACE FUNCTION zq7.FormatPeriod("indate" timestamp)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatPeriod';
COMMENT ON FUNCTION zq7.FormatPeriod(timestamp) IS
  'Writes the month of a date, the year first.';

CREATE OR REPLACE FUNCTION zq7.FormatPeriod_by("convention" text, "indate" timestamp)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatPeriod_by';
COMMENT ON FUNCTION zq7.FormatPeriod_by(text, timestamp) IS
  'Writes the month of a date, the year first.';

CREATE OR REPLACE FUNCTION zq7.FormatTPeriod("indate" timestamp)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTPeriod';
COMMENT ON FUNCTION zq7.FormatTPeriod(timestamp) IS
  'Writes the month of a date, the month first.';

CREATE OR REPLACE FUNCTION zq7.FormatTPeriod_by("convention" text, "indate" timestamp)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTPeriod_by';
COMMENT ON FUNCTION zq7.FormatTPeriod_by(text, timestamp) IS
  'Writes the month of a date, the month first.';

CREATE OR REPLACE FUNCTION zq7.AddMonth("indate" timestamp, "numberofmonth" integer DEFAULT 0)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_AddMonth';
COMMENT ON FUNCTION zq7.AddMonth(timestamp, integer) IS
  'Moves a date by single months, cut back to the last day of each.';

CREATE OR REPLACE FUNCTION zq7.AddMonth_by("convention" text, "indate" timestamp, "numberofmonth" integer DEFAULT 0)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_AddMonth_by';
COMMENT ON FUNCTION zq7.AddMonth_by(text, timestamp, integer) IS
  'Moves a date by single months, cut back to the last day of each.';

CREATE OR REPLACE FUNCTION zq7.AddYear("indate" timestamp, "numberofyear" integer DEFAULT 0)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_AddYear';
COMMENT ON FUNCTION zq7.AddYear(timestamp, integer) IS
  'Moves a date by years of twelve single months.';

CREATE OR REPLACE FUNCTION zq7.AddYear_by("convention" text, "indate" timestamp, "numberofyear" integer DEFAULT 0)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_AddYear_by';
COMMENT ON FUNCTION zq7.AddYear_by(text, timestamp, integer) IS
  'Moves a date by years of twelve single months.';

CREATE OR REPLACE FUNCTION zq7.GETFirstDayOfMonthYear("imonth" integer, "iyear2000" integer)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETFirstDayOfMonthYear';
COMMENT ON FUNCTION zq7.GETFirstDayOfMonthYear(integer, integer) IS
  'The first day of a month of a Gregorian year.';

CREATE OR REPLACE FUNCTION zq7.GETFirstDayOfMonthYear_by("convention" text, "imonth" integer, "iyear2000" integer)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETFirstDayOfMonthYear_by';
COMMENT ON FUNCTION zq7.GETFirstDayOfMonthYear_by(text, integer, integer) IS
  'The first day of a month of a Gregorian year.';

CREATE OR REPLACE FUNCTION zq7.GETLastDayOfMonthYear("imonth" integer, "iyear2000" integer)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETLastDayOfMonthYear';
COMMENT ON FUNCTION zq7.GETLastDayOfMonthYear(integer, integer) IS
  'The last day of a month of a Gregorian year.';

CREATE OR REPLACE FUNCTION zq7.GETFirstMondayOfMonthYear("imonth" integer, "iyear2000" integer)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETFirstMondayOfMonthYear';
COMMENT ON FUNCTION zq7.GETFirstMondayOfMonthYear(integer, integer) IS
  'The first Monday of a month of a Gregorian year.';

CREATE OR REPLACE FUNCTION zq7.GETFirstMondayOfMonthYear_by("convention" text, "imonth" integer, "iyear2000" integer)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETFirstMondayOfMonthYear_by';
COMMENT ON FUNCTION zq7.GETFirstMondayOfMonthYear_by(text, integer, integer) IS
  'The first Monday of a month of a Gregorian year.';

CREATE OR REPLACE FUNCTION zq7.GETFirstSaturdayOfMonthYear("imonth" integer, "iyear2000" integer)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETFirstSaturdayOfMonthYear';
COMMENT ON FUNCTION zq7.GETFirstSaturdayOfMonthYear(integer, integer) IS
  'The first Saturday of a month of a Gregorian year.';

CREATE OR REPLACE FUNCTION zq7.GETFirstSaturdayOfMonthYear_by("convention" text, "imonth" integer, "iyear2000" integer)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETFirstSaturdayOfMonthYear_by';
COMMENT ON FUNCTION zq7.GETFirstSaturdayOfMonthYear_by(text, integer, integer) IS
  'The first Saturday of a month of a Gregorian year.';

CREATE OR REPLACE FUNCTION zq7.GETWeekOfMonth("indate" timestamp)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETWeekOfMonth';
COMMENT ON FUNCTION zq7.GETWeekOfMonth(timestamp) IS
  'The week of the month that a date is in, 1 to 6.';

CREATE OR REPLACE FUNCTION zq7.GETPeriodOfMonth("indate" timestamp)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GETPeriodOfMonth';
COMMENT ON FUNCTION zq7.GETPeriodOfMonth(timestamp) IS
  'The pay period of the month that a date is in, 1 or 2.';

CREATE OR REPLACE FUNCTION zq7.ISWeekHoliday("indate" timestamp)
  RETURNS boolean LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_ISWeekHoliday';
COMMENT ON FUNCTION zq7.ISWeekHoliday(timestamp) IS
  'Whether a date is a Saturday or a Sunday.';

CREATE OR REPLACE FUNCTION zq7.TimeLeftDateTime("startdate" timestamp, "donecount" double precision, "totalcount" double precision)
  RETURNS timestamp LANGUAGE c STABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_TimeLeftDateTime';
COMMENT ON FUNCTION zq7.TimeLeftDateTime(timestamp, double precision, double precision) IS
  'Estimates the days that work will still take from the part done so far.';

CREATE OR REPLACE FUNCTION zq7.FormatTimeleft("timeleft" double precision, "usethai" boolean)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTimeleft';
COMMENT ON FUNCTION zq7.FormatTimeleft(double precision, boolean) IS
  'Writes a span of days as its two largest units.';

CREATE OR REPLACE FUNCTION zq7.FormatTimeleft("timeleft" double precision)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTimeleft';
COMMENT ON FUNCTION zq7.FormatTimeleft(double precision) IS
  'Writes a span of days as its two largest units.';

CREATE OR REPLACE FUNCTION zq7.FormatTimeleft_by("convention" text, "timeleft" double precision, "usethai" boolean)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTimeleft_by';
COMMENT ON FUNCTION zq7.FormatTimeleft_by(text, double precision, boolean) IS
  'Writes a span of days as its two largest units.';

CREATE OR REPLACE FUNCTION zq7.FormatTimeleft_by("convention" text, "timeleft" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTimeleft_by';
COMMENT ON FUNCTION zq7.FormatTimeleft_by(text, double precision) IS
  'Writes a span of days as its two largest units.';

CREATE OR REPLACE FUNCTION zq7.TimeLeftText("startdate" timestamp, "donecount" double precision, "totalcount" double precision, "usethai" boolean)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_TimeLeftText';
COMMENT ON FUNCTION zq7.TimeLeftText(timestamp, double precision, double precision, boolean) IS
  'Writes the time that work will still take.';

CREATE OR REPLACE FUNCTION zq7.TimeLeftText("startdate" timestamp, "donecount" double precision, "totalcount" double precision)
  RETURNS text LANGUAGE c STABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_TimeLeftText';
COMMENT ON FUNCTION zq7.TimeLeftText(timestamp, double precision, double precision) IS
  'Writes the time that work will still take.';

CREATE OR REPLACE FUNCTION zq7.GetConditionDueDate("invoicedate" timestamp, "conditiontype" integer, "netday" integer, "deliveryday" integer)
  RETURNS timestamp LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GetConditionDueDate';
COMMENT ON FUNCTION zq7.GetConditionDueDate(timestamp, integer, integer, integer) IS
  'The due date of an invoice.';

CREATE OR REPLACE FUNCTION zq7.FormatCondition2("condition1" double precision, "conditionday1" integer, "conditiontype" integer, "outputtype" integer, "conditionday" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatCondition2';
COMMENT ON FUNCTION zq7.FormatCondition2(double precision, integer, integer, integer, double precision) IS
  'Writes a payment term in trade notation.';

CREATE OR REPLACE FUNCTION zq7.FormatCondition("condition1" double precision, "conditionday1" integer, "conditiontype" double precision, "outputtype" double precision, "conditionday" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatCondition';
COMMENT ON FUNCTION zq7.FormatCondition(double precision, integer, double precision, double precision, double precision) IS
  '`FormatCondition2` with the event and the output as numbers.';

CREATE OR REPLACE FUNCTION zq7.FixNumber2("ivalue" double precision, "decimaldigit" integer, "ignorenextdigit" boolean)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FixNumber2';
COMMENT ON FUNCTION zq7.FixNumber2(double precision, integer, boolean) IS
  'Rounds a number as it prints, half away from zero.';

CREATE OR REPLACE FUNCTION zq7.FixNumber("ivalue" double precision, "decimaldigit" integer)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FixNumber';
COMMENT ON FUNCTION zq7.FixNumber(double precision, integer) IS
  '`FixNumber2` without `IgnoreNextDigit`.';

CREATE OR REPLACE FUNCTION zq7.Round("ivalue" double precision, "decimaldigit" integer)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Round';
COMMENT ON FUNCTION zq7.Round(double precision, integer) IS
  'The same as `FixNumber`.';

CREATE OR REPLACE FUNCTION zq7.Floor("ivalue" double precision)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Floor';
COMMENT ON FUNCTION zq7.Floor(double precision) IS
  'Cuts a number toward zero.';

CREATE OR REPLACE FUNCTION zq7.Ceiling("ivalue" double precision)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Ceiling';
COMMENT ON FUNCTION zq7.Ceiling(double precision) IS
  '`Floor`, plus 1 if the number is above it.';

CREATE OR REPLACE FUNCTION zq7.FixNumberWithCutMode("ivalue" double precision, "decimaldigit" integer, "cutmode" integer)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FixNumberWithCutMode';
COMMENT ON FUNCTION zq7.FixNumberWithCutMode(double precision, integer, integer) IS
  'Rounds a number and brings it to a whole unit.';

CREATE OR REPLACE FUNCTION zq7.FixMoneyDecimal("ivalue" numeric, "increasetoceiling" boolean, "celinglist" text DEFAULT '')
  RETURNS numeric LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FixMoneyDecimal';
COMMENT ON FUNCTION zq7.FixMoneyDecimal(numeric, boolean, text) IS
  'Brings an amount to a whole unit.';

CREATE OR REPLACE FUNCTION zq7.StrVal("istr" text)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_StrVal';
COMMENT ON FUNCTION zq7.StrVal(text) IS
  'Reads the number at the front of a typed text.';

CREATE OR REPLACE FUNCTION zq7.StrVal2("istr" text, "decimaldigit" integer)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_StrVal2';
COMMENT ON FUNCTION zq7.StrVal2(text, integer) IS
  '`StrVal`, rounded; -1 does not round.';

CREATE OR REPLACE FUNCTION zq7.StrInt("istr" text, "decimaldigit" integer DEFAULT (-1))
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_StrInt';
COMMENT ON FUNCTION zq7.StrInt(text, integer) IS
  '`StrVal2` as a 16-bit integer, halves to even.';

CREATE OR REPLACE FUNCTION zq7.StrLng("istr" text, "decimaldigit" integer DEFAULT (-1))
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_StrLng';
COMMENT ON FUNCTION zq7.StrLng(text, integer) IS
  '`StrVal2` as a 32-bit integer, halves to even.';

CREATE OR REPLACE FUNCTION zq7.StrSng("istr" text, "decimaldigit" integer DEFAULT (-1))
  RETURNS real LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_StrSng';
COMMENT ON FUNCTION zq7.StrSng(text, integer) IS
  '`StrVal2` as a 32-bit float.';

CREATE OR REPLACE FUNCTION zq7.Null2Zero("inputvalue" double precision DEFAULT NULL)
  RETURNS double precision LANGUAGE c IMMUTABLE PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Null2Zero';
COMMENT ON FUNCTION zq7.Null2Zero(double precision) IS
  'A number, or 0 for a missing one.';

CREATE OR REPLACE FUNCTION zq7.Numb("itext" text, "includedot" boolean DEFAULT false, "includesign" boolean DEFAULT false)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Numb';
COMMENT ON FUNCTION zq7.Numb(text, boolean, boolean) IS
  'The digits of a text.';

CREATE OR REPLACE FUNCTION zq7.Trim2Number("itext" text, "includedot" boolean DEFAULT false, "includesign" boolean DEFAULT false)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Trim2Number';
COMMENT ON FUNCTION zq7.Trim2Number(text, boolean, boolean) IS
  'The same as `Numb`.';

CREATE OR REPLACE FUNCTION zq7.d2h("iday" double precision)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_d2h';
COMMENT ON FUNCTION zq7.d2h(double precision) IS
  'Days to hours.';

CREATE OR REPLACE FUNCTION zq7.d2m("iday" double precision)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_d2m';
COMMENT ON FUNCTION zq7.d2m(double precision) IS
  'Days to minutes.';

CREATE OR REPLACE FUNCTION zq7.h2d("ihour" double precision)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_h2d';
COMMENT ON FUNCTION zq7.h2d(double precision) IS
  'Hours to days.';

CREATE OR REPLACE FUNCTION zq7.m2d("iminute" double precision)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_m2d';
COMMENT ON FUNCTION zq7.m2d(double precision) IS
  'Minutes to days.';

CREATE OR REPLACE FUNCTION zq7.d2Str("ivalue" double precision)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_d2Str';
COMMENT ON FUNCTION zq7.d2Str(double precision) IS
  'The shortest text of a number.';

CREATE OR REPLACE FUNCTION zq7.FormatCostCode("price" double precision, "codeword" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatCostCode';
COMMENT ON FUNCTION zq7.FormatCostCode(double precision, text) IS
  'Writes a cost price in the letters of a code word.';

CREATE OR REPLACE FUNCTION zq7.FormatCostCode2("price" double precision, "codeword" text, "repeatcharacter" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatCostCode2';
COMMENT ON FUNCTION zq7.FormatCostCode2(double precision, text, text) IS
  'The same with a character for each repeated digit.';

CREATE OR REPLACE FUNCTION zq7.DeFormatCostCode("costcode" text, "codeword" text)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_DeFormatCostCode';
COMMENT ON FUNCTION zq7.DeFormatCostCode(text, text) IS
  'Reads the price that `FormatCostCode` wrote.';

CREATE OR REPLACE FUNCTION zq7.DeFormatCostCode2("costcode" text, "codeword" text, "repeatcharacter" text)
  RETURNS double precision LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_DeFormatCostCode2';
COMMENT ON FUNCTION zq7.DeFormatCostCode2(text, text, text) IS
  'Reads the price that `FormatCostCode2` wrote.';

CREATE OR REPLACE FUNCTION zq7.AddList("ilist" text, "iadd" text, "separatechar" text DEFAULT ';')
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_AddList';
COMMENT ON FUNCTION zq7.AddList(text, text, text) IS
  'Adds an item to a list unless it is there.';

CREATE OR REPLACE FUNCTION zq7.ArrayString("i1" text, "i2" text DEFAULT '', "i3" text DEFAULT '', "i4" text DEFAULT '', "i5" text DEFAULT '', "i6" text DEFAULT '', "i7" text DEFAULT '', "i8" text DEFAULT '', "i9" text DEFAULT '', "i10" text DEFAULT '', "i11" text DEFAULT '', "i12" text DEFAULT '', "i13" text DEFAULT '', "i14" text DEFAULT '', "i15" text DEFAULT '', "i16" text DEFAULT '', "i17" text DEFAULT '', "i18" text DEFAULT '', "i19" text DEFAULT '', "i20" text DEFAULT '')
  RETURNS text[] LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_ArrayString';
COMMENT ON FUNCTION zq7.ArrayString(text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text) IS
  '`ArrayString2` of up to 20 texts.';

CREATE OR REPLACE FUNCTION zq7.ArrayString2("i1" text, "i2" text DEFAULT '', "i3" text DEFAULT '', "i4" text DEFAULT '', "i5" text DEFAULT '', "i6" text DEFAULT '', "i7" text DEFAULT '', "i8" text DEFAULT '', "i9" text DEFAULT '', "i10" text DEFAULT '', "i11" text DEFAULT '', "i12" text DEFAULT '', "i13" text DEFAULT '', "i14" text DEFAULT '', "i15" text DEFAULT '', "i16" text DEFAULT '', "i17" text DEFAULT '', "i18" text DEFAULT '', "i19" text DEFAULT '', "i20" text DEFAULT '', "i21" text DEFAULT '', "i22" text DEFAULT '', "i23" text DEFAULT '', "i24" text DEFAULT '', "i25" text DEFAULT '', "i26" text DEFAULT '', "i27" text DEFAULT '', "i28" text DEFAULT '', "i29" text DEFAULT '', "i30" text DEFAULT '')
  RETURNS text[] LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_ArrayString2';
COMMENT ON FUNCTION zq7.ArrayString2(text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text, text) IS
  'The texts that are not empty, as an array.';

CREATE OR REPLACE FUNCTION zq7.ReverseList("ilist" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_ReverseList';
COMMENT ON FUNCTION zq7.ReverseList(text) IS
  'A comma-separated list from last to first.';

CREATE OR REPLACE FUNCTION zq7.TrimN("istr" text, "inum" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_TrimN';
COMMENT ON FUNCTION zq7.TrimN(text, integer) IS
  'The whole number in a field of a comma-separated list.';

CREATE OR REPLACE FUNCTION zq7.ReverseString("istring" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_ReverseString';
COMMENT ON FUNCTION zq7.ReverseString(text) IS
  'The characters from last to first.';

CREATE OR REPLACE FUNCTION zq7.TrimSpaceToOne("instring" text, "trimfront" boolean DEFAULT true, "trimback" boolean DEFAULT true)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_TrimSpaceToOne';
COMMENT ON FUNCTION zq7.TrimSpaceToOne(text, boolean, boolean) IS
  'Shrinks every run of blanks to one.';

CREATE OR REPLACE FUNCTION zq7.IncreaseString("inputstring" text, "addstringnumber" text DEFAULT '')
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_IncreaseString';
COMMENT ON FUNCTION zq7.IncreaseString(text, text) IS
  'Counts up the number at the end of a key.';

CREATE OR REPLACE FUNCTION zq7.FormatTextSort("inputstring" text, "length" integer)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatTextSort';
COMMENT ON FUNCTION zq7.FormatTextSort(text, integer) IS
  'Pads the number at the end of a text with zeros, for sorting.';

CREATE OR REPLACE FUNCTION zq7.Instr2("start" integer, "mainstring" text, "searchstring" text, "compare" integer DEFAULT 0, "searchfromback" boolean DEFAULT false)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_Instr2';
COMMENT ON FUNCTION zq7.Instr2(integer, text, text, integer, boolean) IS
  'The position of a text in another, from 1; 0 if it is not found.';

CREATE OR REPLACE FUNCTION zq7.FormatPrimaryKey("inputkeyvalue" text, "primarykeymode" integer DEFAULT 0, "maxlen" integer DEFAULT 0, "acceptinsidespace" integer DEFAULT 0, "numberonly" integer DEFAULT 0, "autouppercase" integer DEFAULT 0, "acceptonlyenglishcharandnumber" integer DEFAULT 0, "acceptinsidemultispace" integer DEFAULT 0, "reserve2" integer DEFAULT 0, "reserve3" integer DEFAULT 0, "reserve4" integer DEFAULT 0)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatPrimaryKey';
COMMENT ON FUNCTION zq7.FormatPrimaryKey(text, integer, integer, integer, integer, integer, integer, integer, integer, integer, integer) IS
  'Cleans a record key as typed.';

CREATE OR REPLACE FUNCTION zq7.FormatSerialNo("inputkeyvalue" text, "maxlen" integer DEFAULT 30, "acceptinsidespace" integer DEFAULT 0, "numberonly" integer DEFAULT 0, "autouppercase" integer DEFAULT 0, "acceptonlyenglishcharandnumber" integer DEFAULT 0)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatSerialNo';
COMMENT ON FUNCTION zq7.FormatSerialNo(text, integer, integer, integer, integer, integer) IS
  'Cleans a serial number as typed.';

CREATE OR REPLACE FUNCTION zq7.FormatBarCode("inputbarcodevalue" text, "barcodetype" integer DEFAULT 0)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatBarCode';
COMMENT ON FUNCTION zq7.FormatBarCode(text, integer) IS
  'The letters and digits of a bar code as typed.';

CREATE OR REPLACE FUNCTION zq7.FormatIP("stringip" text, "forceipv4" boolean DEFAULT true)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_FormatIP';
COMMENT ON FUNCTION zq7.FormatIP(text, boolean) IS
  'A network address without leading zeros; empty if it is not one.';

CREATE OR REPLACE FUNCTION zq7.GetEAN13ChekDigit("scodice" text)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GetEAN13ChekDigit';
COMMENT ON FUNCTION zq7.GetEAN13ChekDigit(text) IS
  'The EAN-13 check digit of the first 12 characters.';

CREATE OR REPLACE FUNCTION zq7.GetITF14ChekDigit("scodice" text)
  RETURNS integer LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 10
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_GetITF14ChekDigit';
COMMENT ON FUNCTION zq7.GetITF14ChekDigit(text) IS
  'The ITF-14 check digit of the first 13 characters.';

CREATE OR REPLACE FUNCTION zq7.EncryptBS("stringinput" text, "password" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_EncryptBS';
COMMENT ON FUNCTION zq7.EncryptBS(text, text) IS
  'Hides a text from a glance, under a password.';

CREATE OR REPLACE FUNCTION zq7.DecryptBS("encryptedtextinput" text, "password" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_DecryptBS';
COMMENT ON FUNCTION zq7.DecryptBS(text, text) IS
  'Undoes `EncryptBS`.';

CREATE OR REPLACE FUNCTION zq7.CalculateMD5("strmessage" text)
  RETURNS text LANGUAGE c IMMUTABLE STRICT PARALLEL SAFE COST 20
  AS 'MODULE_PATHNAME', 'zq7_StandardObject_CalculateMD5';
COMMENT ON FUNCTION zq7.CalculateMD5(text) IS
  'The MD5 digest of a text.';

CREATE OR REPLACE FUNCTION zq7.ZQ7Detect()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '0';
COMMENT ON FUNCTION zq7.ZQ7Detect() IS
  'CTDateType: the system''s own layout, one of 1 to 4';

CREATE OR REPLACE FUNCTION zq7.ZQ7MDYYYY()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '1';
COMMENT ON FUNCTION zq7.ZQ7MDYYYY() IS
  'CTDateType: 1/15/2024';

CREATE OR REPLACE FUNCTION zq7.ZQ7DMYYYY()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '2';
COMMENT ON FUNCTION zq7.ZQ7DMYYYY() IS
  'CTDateType: 15/1/2024';

CREATE OR REPLACE FUNCTION zq7.ZQ7MDBBBB()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '3';
COMMENT ON FUNCTION zq7.ZQ7MDBBBB() IS
  'CTDateType: 1/15/2567';

CREATE OR REPLACE FUNCTION zq7.ZQ7DMBBBB()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '4';
COMMENT ON FUNCTION zq7.ZQ7DMBBBB() IS
  'CTDateType: 15/1/2567';

CREATE OR REPLACE FUNCTION zq7.ZQ7YYYYMD()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '5';
COMMENT ON FUNCTION zq7.ZQ7YYYYMD() IS
  'CTDateType: 2024/1/15';

CREATE OR REPLACE FUNCTION zq7.ZQ7BBBBMD()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '6';
COMMENT ON FUNCTION zq7.ZQ7BBBBMD() IS
  'CTDateType: 2567/1/15';

CREATE OR REPLACE FUNCTION zq7.ZQ7DMMBBBB()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '7';
COMMENT ON FUNCTION zq7.ZQ7DMMBBBB() IS
  'CTDateType: 15 ม.ค. 2567';

CREATE OR REPLACE FUNCTION zq7.ZQ7DMMMBBBB()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '8';
COMMENT ON FUNCTION zq7.ZQ7DMMMBBBB() IS
  'CTDateType: 15 มกราคม 2567';

CREATE OR REPLACE FUNCTION zq7.ZQ7DMMYYYY()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '9';
COMMENT ON FUNCTION zq7.ZQ7DMMYYYY() IS
  'CTDateType: 15 Jan 2024';

CREATE OR REPLACE FUNCTION zq7.ZQ7DMMMYYYY()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '10';
COMMENT ON FUNCTION zq7.ZQ7DMMMYYYY() IS
  'CTDateType: 15 January 2024';

CREATE OR REPLACE FUNCTION zq7.ZQ7YYYY_MM_DD()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '11';
COMMENT ON FUNCTION zq7.ZQ7YYYY_MM_DD() IS
  'CTDateType: 2024-01-15';

CREATE OR REPLACE FUNCTION zq7.ZQ7MMMD_YYYY()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '12';
COMMENT ON FUNCTION zq7.ZQ7MMMD_YYYY() IS
  'CTDateType: January 15, 2024';

CREATE OR REPLACE FUNCTION zq7.ZQ7MMMYYYY()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '13';
COMMENT ON FUNCTION zq7.ZQ7MMMYYYY() IS
  'CTDateType: January 2024';

CREATE OR REPLACE FUNCTION zq7.ZQ7D_D_M_M_Y_Y_Y_Y()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '14';
COMMENT ON FUNCTION zq7.ZQ7D_D_M_M_Y_Y_Y_Y() IS
  'CTDateType: 1 5 0 1 2 0 2 4, for the boxes of a cheque';

CREATE OR REPLACE FUNCTION zq7.ZQ7D_D_M_M_B_B_B_B()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '15';
COMMENT ON FUNCTION zq7.ZQ7D_D_M_M_B_B_B_B() IS
  'CTDateType: 1 5 0 1 2 5 6 7';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterInvoiceDate()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '0';
COMMENT ON FUNCTION zq7.ZQ7AfterInvoiceDate() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterDeliveryDate()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '1';
COMMENT ON FUNCTION zq7.ZQ7AfterDeliveryDate() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterBLDate()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '2';
COMMENT ON FUNCTION zq7.ZQ7AfterBLDate() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterReceiveOSDOC()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '3';
COMMENT ON FUNCTION zq7.ZQ7AfterReceiveOSDOC() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterEndOfInvoiceMonth()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '4';
COMMENT ON FUNCTION zq7.ZQ7AfterEndOfInvoiceMonth() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterEndOfDeliveryMonth()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '5';
COMMENT ON FUNCTION zq7.ZQ7AfterEndOfDeliveryMonth() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterEndOfBLMonth()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '6';
COMMENT ON FUNCTION zq7.ZQ7AfterEndOfBLMonth() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterEndOfReceiveOSDOCMonth()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '7';
COMMENT ON FUNCTION zq7.ZQ7AfterEndOfReceiveOSDOCMonth() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7AfterEndOfSPTMonth()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '8';
COMMENT ON FUNCTION zq7.ZQ7AfterEndOfSPTMonth() IS
  'ZQ7ConditionType';

CREATE OR REPLACE FUNCTION zq7.ZQ7ConditionOutputTypeShort()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '0';
COMMENT ON FUNCTION zq7.ZQ7ConditionOutputTypeShort() IS
  'ZQ7ConditionOutputType: "N/30 AID"';

CREATE OR REPLACE FUNCTION zq7.ZQ7ConditionOutputTypeFull()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '1';
COMMENT ON FUNCTION zq7.ZQ7ConditionOutputTypeFull() IS
  'ZQ7ConditionOutputType: "N/30 AFTER INVOICE DATE"';

CREATE OR REPLACE FUNCTION zq7.ZQ7FixUnitNone()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '0';
COMMENT ON FUNCTION zq7.ZQ7FixUnitNone() IS
  'ZQ7FixUnit: not at all';

CREATE OR REPLACE FUNCTION zq7.ZQ7FixUnitFiveUp()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '1';
COMMENT ON FUNCTION zq7.ZQ7FixUnitFiveUp() IS
  'ZQ7FixUnit: up if the fraction is .5 or more, else down';

CREATE OR REPLACE FUNCTION zq7.ZQ7FixUnitAllUp()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '2';
COMMENT ON FUNCTION zq7.ZQ7FixUnitAllUp() IS
  'ZQ7FixUnit: up';

CREATE OR REPLACE FUNCTION zq7.ZQ7FixUnitAllDown()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '3';
COMMENT ON FUNCTION zq7.ZQ7FixUnitAllDown() IS
  'ZQ7FixUnit: toward zero';

CREATE OR REPLACE FUNCTION zq7.ZQ7CompareBinary()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '0';
COMMENT ON FUNCTION zq7.ZQ7CompareBinary() IS
  'ZQ7CompareMethod: code unit by code unit';

CREATE OR REPLACE FUNCTION zq7.ZQ7CompareText()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '1';
COMMENT ON FUNCTION zq7.ZQ7CompareText() IS
  'ZQ7CompareMethod: without regard to case, in every script and locale';

CREATE OR REPLACE FUNCTION zq7.ZQ7ConnectionSecurityNone()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '0';
COMMENT ON FUNCTION zq7.ZQ7ConnectionSecurityNone() IS
  'ZQ7ConnectionSecurity: not at all';

CREATE OR REPLACE FUNCTION zq7.ZQ7ConnectionSecuritySTARTTLS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '1';
COMMENT ON FUNCTION zq7.ZQ7ConnectionSecuritySTARTTLS() IS
  'ZQ7ConnectionSecurity: by TLS, once the server agrees; often port 587';

CREATE OR REPLACE FUNCTION zq7.ZQ7ConnectionSecuritySSL_TLS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '2';
COMMENT ON FUNCTION zq7.ZQ7ConnectionSecuritySSL_TLS() IS
  'ZQ7ConnectionSecurity: by TLS from the start; often port 465';

CREATE OR REPLACE FUNCTION zq7.itUNKNOWN()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '0';
COMMENT ON FUNCTION zq7.itUNKNOWN() IS
  'eImageType: none of the others';

CREATE OR REPLACE FUNCTION zq7.itGIF()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '1';
COMMENT ON FUNCTION zq7.itGIF() IS
  'eImageType';

CREATE OR REPLACE FUNCTION zq7.itJPEG()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '2';
COMMENT ON FUNCTION zq7.itJPEG() IS
  'eImageType';

CREATE OR REPLACE FUNCTION zq7.itPNG()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '3';
COMMENT ON FUNCTION zq7.itPNG() IS
  'eImageType';

CREATE OR REPLACE FUNCTION zq7.itBMP()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '4';
COMMENT ON FUNCTION zq7.itBMP() IS
  'eImageType';

CREATE OR REPLACE FUNCTION zq7.HKEY_CLASSES_ROOT()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '-2147483648';
COMMENT ON FUNCTION zq7.HKEY_CLASSES_ROOT() IS
  'KetRootType: 0x80000000';

CREATE OR REPLACE FUNCTION zq7.HKEY_CURRENT_USER()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '-2147483647';
COMMENT ON FUNCTION zq7.HKEY_CURRENT_USER() IS
  'KetRootType: the user''s own';

CREATE OR REPLACE FUNCTION zq7.HKEY_LOCAL_MACHINE()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '-2147483646';
COMMENT ON FUNCTION zq7.HKEY_LOCAL_MACHINE() IS
  'KetRootType: the machine''s';

CREATE OR REPLACE FUNCTION zq7.HKEY_USERS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '-2147483645';
COMMENT ON FUNCTION zq7.HKEY_USERS() IS
  'KetRootType';

CREATE OR REPLACE FUNCTION zq7.HKEY_PERFORMANCE_DATA()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '-2147483644';
COMMENT ON FUNCTION zq7.HKEY_PERFORMANCE_DATA() IS
  'KetRootType: never holds a value';

CREATE OR REPLACE FUNCTION zq7.CSIDL_DESKTOP()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '0';
COMMENT ON FUNCTION zq7.CSIDL_DESKTOP() IS
  'VirtualFolder';

CREATE OR REPLACE FUNCTION zq7.CSIDL_INTERNET()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '1';
COMMENT ON FUNCTION zq7.CSIDL_INTERNET() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_PROGRAMS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '2';
COMMENT ON FUNCTION zq7.CSIDL_PROGRAMS() IS
  'VirtualFolder: starters of the user''s programs';

CREATE OR REPLACE FUNCTION zq7.CSIDL_CONTROLS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '3';
COMMENT ON FUNCTION zq7.CSIDL_CONTROLS() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_PRINTERS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '4';
COMMENT ON FUNCTION zq7.CSIDL_PRINTERS() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_PERSONAL()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '5';
COMMENT ON FUNCTION zq7.CSIDL_PERSONAL() IS
  'VirtualFolder: documents';

CREATE OR REPLACE FUNCTION zq7.CSIDL_FAVORITES()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '6';
COMMENT ON FUNCTION zq7.CSIDL_FAVORITES() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_STARTUP()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '7';
COMMENT ON FUNCTION zq7.CSIDL_STARTUP() IS
  'VirtualFolder: programs that start when the user logs in';

CREATE OR REPLACE FUNCTION zq7.CSIDL_RECENT()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '8';
COMMENT ON FUNCTION zq7.CSIDL_RECENT() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_SENDTO()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '9';
COMMENT ON FUNCTION zq7.CSIDL_SENDTO() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_BITBUCKET()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '10';
COMMENT ON FUNCTION zq7.CSIDL_BITBUCKET() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_STARTMENU()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '11';
COMMENT ON FUNCTION zq7.CSIDL_STARTMENU() IS
  'VirtualFolder: as `CSIDL_PROGRAMS`';

CREATE OR REPLACE FUNCTION zq7.CSIDL_MYDOCUMENTS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '12';
COMMENT ON FUNCTION zq7.CSIDL_MYDOCUMENTS() IS
  'VirtualFolder: as `CSIDL_PERSONAL`';

CREATE OR REPLACE FUNCTION zq7.CSIDL_MYMUSIC()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '13';
COMMENT ON FUNCTION zq7.CSIDL_MYMUSIC() IS
  'VirtualFolder: music';

CREATE OR REPLACE FUNCTION zq7.CSIDL_MYVIDEO()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '14';
COMMENT ON FUNCTION zq7.CSIDL_MYVIDEO() IS
  'VirtualFolder: videos';

CREATE OR REPLACE FUNCTION zq7.CSIDL_DESKTOPDIRECTORY()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '16';
COMMENT ON FUNCTION zq7.CSIDL_DESKTOPDIRECTORY() IS
  'VirtualFolder: as `CSIDL_DESKTOP`';

CREATE OR REPLACE FUNCTION zq7.CSIDL_DRIVES()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '17';
COMMENT ON FUNCTION zq7.CSIDL_DRIVES() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_NETWORK()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '18';
COMMENT ON FUNCTION zq7.CSIDL_NETWORK() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_NETHOOD()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '19';
COMMENT ON FUNCTION zq7.CSIDL_NETHOOD() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_FONTS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '20';
COMMENT ON FUNCTION zq7.CSIDL_FONTS() IS
  'VirtualFolder: the machine''s fonts';

CREATE OR REPLACE FUNCTION zq7.CSIDL_TEMPLATES()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '21';
COMMENT ON FUNCTION zq7.CSIDL_TEMPLATES() IS
  'VirtualFolder: templates of documents';

CREATE OR REPLACE FUNCTION zq7.CSIDL_COMMON_STARTMENU()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '22';
COMMENT ON FUNCTION zq7.CSIDL_COMMON_STARTMENU() IS
  'VirtualFolder: as `CSIDL_COMMON_PROGRAMS`';

CREATE OR REPLACE FUNCTION zq7.CSIDL_COMMON_PROGRAMS()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '23';
COMMENT ON FUNCTION zq7.CSIDL_COMMON_PROGRAMS() IS
  'VirtualFolder: starters of everybody''s programs';

CREATE OR REPLACE FUNCTION zq7.CSIDL_COMMON_STARTUP()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '24';
COMMENT ON FUNCTION zq7.CSIDL_COMMON_STARTUP() IS
  'VirtualFolder: programs that start when anybody logs in';

CREATE OR REPLACE FUNCTION zq7.CSIDL_COMMON_DESKTOPDIRECTORY()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '25';
COMMENT ON FUNCTION zq7.CSIDL_COMMON_DESKTOPDIRECTORY() IS
  'VirtualFolder: none';

CREATE OR REPLACE FUNCTION zq7.CSIDL_APPDATA()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '26';
COMMENT ON FUNCTION zq7.CSIDL_APPDATA() IS
  'VirtualFolder: settings of programs';

CREATE OR REPLACE FUNCTION zq7.CSIDL_LOCAL_APPDATA()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '28';
COMMENT ON FUNCTION zq7.CSIDL_LOCAL_APPDATA() IS
  'VirtualFolder: data of programs';

CREATE OR REPLACE FUNCTION zq7.CSIDL_MYPICTURES()
  RETURNS integer LANGUAGE sql IMMUTABLE PARALLEL SAFE RETURN integer '39';
COMMENT ON FUNCTION zq7.CSIDL_MYPICTURES() IS
  'VirtualFolder: pictures';

