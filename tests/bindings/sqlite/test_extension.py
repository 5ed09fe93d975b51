#!/usr/bin/python3
"""The extension of SQLite from Python; the argument is the extension."""

import sqlite3
import sys
import tempfile
import threading
import unittest

EXTENSION = sys.argv.pop()


def connect(path=":memory:"):
    connection = sqlite3.connect(path)
    connection.enable_load_extension(True)
    connection.load_extension(EXTENSION)
    return connection


class Extension(unittest.TestCase):
    def answer(self, expression, *values, connection=None):
        try:
            return (connection or self.connection).execute("SELECT " + expression, values).fetchone()[0]
        except sqlite3.OperationalError as error:
            return str(error)

    def setUp(self):
        self.connection = connect()

    def tearDown(self):
        self.connection.close()

    def test_arguments_keep_their_type(self):
        rows = [
            ("zq7_Floor(?)", 2.5, 2.0),
            ("zq7_Floor(?)", "2.5", 2.0),
            ("zq7_Floor(?)", "abc", 'StandardObject.Floor: type mismatch (error 13): iValue: "abc"'),
            ("zq7_Floor(?)", b"2", 'StandardObject.Floor: type mismatch (error 13): iValue: "a blob"'),
            ("zq7_Floor(?)", None, None),
            ("zq7_Null2Zero(?)", None, 0.0),
            ("zq7_MonthText(?, 1, 0)", 99999, 'StandardObject.MonthText: overflow (error 6): MonthNumber: "99999"'),
            ("zq7_ReverseString(?)", 9223372036854775807, "7085774586302733229"),
            ("zq7_ReverseString(?)", 12.5, "5.21"),
            ("zq7_FormatTime(?)", "2024-01-31 09:30", "09:30"),
            ("zq7_FormatTime(?)", "2024-01-31T09:30:59", "09:30"),
            ("zq7_FormatTime(?)", "31/1/2567", 'StandardObject.FormatTime: type mismatch (error 13): InDate: "31/1/2567"'),
            ("zq7_FormatTime(?)", "2024-02-30", 'StandardObject.FormatTime: type mismatch (error 13): InDate: "2024-02-30"'),
            ("zq7_FormatTime(?)", 45000.5, 'StandardObject.FormatTime: type mismatch (error 13): InDate: "45000.5"'),
            ("zq7_GETFirstDayOfMonthYear(2, ?)", 2024, "2024-02-01"),
            ("zq7_FixMoneyDecimal(?, 1)", "12.25", 13.0),
            ("zq7_isHour(?)", "7:30", 1),
            ("zq7_ArrayString2('\"a', ?)", "ก", '["\\"a","ก"]'),
            ("zq7_ReverseString(?)", "a😀", "invalid procedure call or argument: the result is not a text that SQLite can hold"),
        ]
        for expression, value, expected in rows:
            with self.subTest(expression, value=value):
                self.assertEqual(self.answer(expression, value), expected)

    def test_each_connection_has_its_convention(self):
        other = connect()
        self.assertEqual(self.answer("zq7_convention('mdy')"), "mdy")
        self.assertEqual(self.answer("zq7_CTDATE('1/31/2024')"), "2024-01-31")
        self.assertEqual(self.answer("zq7_convention()", connection=other), "dmy-buddhist")
        self.assertIn('"th" is not one of', self.answer("zq7_convention('th')"))
        self.assertEqual(self.answer("zq7_convention()"), "mdy")
        other.close()

    def test_only_what_never_changes_is_stored(self):
        self.connection.execute("CREATE TABLE t (a)")
        for call, stored in [("BahtString(a)", True), ("AddMonth(a, 1)", False),
                             ("GETValidDate(a)", False), ("MoneyTextT(a)", False)]:
            with self.subTest(call):
                try:
                    self.connection.execute(f"CREATE INDEX {call[:5]} ON t (zq7_{call})")
                    self.assertTrue(stored)
                except sqlite3.OperationalError as error:
                    self.assertFalse(stored)
                    self.assertIn("non-deterministic", str(error))
        self.assertIn("no such function", self.answer("zq7_Random(1, 2)"))

    def test_views_may_call_but_not_set(self):
        self.connection.execute("PRAGMA trusted_schema = OFF")
        self.connection.execute("CREATE VIEW words AS SELECT zq7_BahtString(1) AS text")
        self.connection.execute("CREATE VIEW setting AS SELECT zq7_convention('mdy') AS text")
        self.assertEqual(self.answer("text FROM words"), "หนึ่งบาทถ้วน")
        self.assertIn("unsafe use", self.answer("text FROM setting"))

    def test_stored_words_outlive_the_connection(self):
        with tempfile.TemporaryDirectory() as folder:
            path = folder + "/shop.db"
            first = connect(path)
            first.execute("PRAGMA encoding = 'UTF-16'")
            first.execute("CREATE TABLE t (a, words AS (zq7_BahtString(a)) STORED)")
            first.execute("INSERT INTO t (a) VALUES (21)")
            first.commit()
            first.close()
            without = sqlite3.connect(path)
            self.assertEqual(without.execute("SELECT words FROM t").fetchall(), [("ยี่สิบเอ็ดบาทถ้วน",)])
            without.close()

    def test_connections_in_threads(self):
        def work(results):
            connection = connect()
            query = """WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 5000)
                       SELECT count(DISTINCT zq7_BahtString(i)) FROM n"""
            results.append(connection.execute(query).fetchone()[0])
            connection.close()

        results = []
        threads = [threading.Thread(target=work, args=(results,)) for _ in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(results, [5000] * 4)


if __name__ == "__main__":
    unittest.main()
