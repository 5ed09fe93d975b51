"""The package against the catalogue's examples, and what Python adds to a call."""

import copy
import gc
import inspect
import pathlib
import pickle
import tempfile
import threading
import time
import unittest
import weakref
from datetime import date, datetime, timedelta, timezone
from decimal import Decimal
from fractions import Fraction

import zq7standard
from zq7standard import (
    BahtStringObject,
    CTDateType,
    GridValueObject,
    KetRootType,
    PeripheralObject,
    PrintObject,
    PrintPicture,
    RegistryObject,
    RunTimeError,
    SerialPort,
    StandardObject,
    WrongCall,
    ZQ7ConditionType,
    _native,
)

NOW = datetime(2024, 1, 15, 9, 30)
PNG = pathlib.Path(__file__).resolve().parents[3] / "docs/invoice.png"


def thai(**services):
    return StandardObject(clock=NOW, convention="dmy-buddhist", **services)


def grid(columns=3):
    made = GridValueObject()
    made.SetCols(columns)
    return made


class Examples(unittest.TestCase):
    """Every operation, as its documentation shows it."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.drives = {"C": folder.name}
        (pathlib.Path(folder.name) / "shop").mkdir()

    def new(self, name):
        return getattr(zq7standard, name)(
            clock=NOW,
            convention="dmy-buddhist",
            memory_registry=True,
            drives=self.drives,
            silent_printers=["PDF"],
            message_box=lambda title, text: None,
        )

    def made(self, value, parameter):
        if parameter["type"] == "PrintPicture":
            return PrintPicture(value, drives=self.drives)
        return SerialPort() if parameter["type"] == "SerialPort" else value

    def call(self, instance, operation, values):
        """After an argument that is left out, the others have names."""
        positional, named = [], {}
        for parameter, value in zip(operation["parameters"], values):
            if value is ...:
                continue
            value = self.made(value, parameter)
            if len(positional) == operation["parameters"].index(parameter):
                positional.append(value)
            else:
                named[parameter["name"]] = value
        return getattr(instance, operation["name"])(*positional, **named)

    def outcome(self, owner, operation, example):
        instance = self.new(owner["name"])
        by_name = {row["name"]: row for row in owner["operations"]}
        for name, values in example["before"]:
            self.call(instance, by_name[name], values)
        try:
            return self.call(instance, operation, example["arguments"])
        except RunTimeError as error:
            return error.number

    # Their examples are those of another machine, which Python cannot provide.
    OF_A_MACHINE = {"GetComputerName", "GetDiskSerialNumber", "GetVolumeSerialNumber"}

    def test_examples(self):
        count = 0
        for owner in _native.classes():
            for operation in owner["operations"]:
                if operation["name"] in self.OF_A_MACHINE:
                    continue
                for example in operation["examples"]:
                    with self.subTest(owner["name"], call=operation["name"], example=example):
                        wanted = example["error"] or example["result"]
                        self.assertEqual(self.outcome(owner, operation, example), wanted)
                        count += 1
        self.assertGreater(count, 150)


class Values(unittest.TestCase):
    def test_taken(self):
        standard, baht = thai(), BahtStringObject()
        amount = Decimal("-99999999999999.9999")
        for reason, got, wanted in [
            ("a text as a date", standard.AddMonth("31/1/2567", 1), datetime(2024, 2, 29)),
            ("a date's midnight", standard.AddMonth(date(2024, 1, 31), 1), datetime(2024, 2, 29)),
            ("a number as a date", standard.FormatQuery(45306), "2024-01-15"),
            ("a fraction", standard.Floor(Fraction(7, 2)), 3.0),
            ("a Decimal as a double", baht.BahtString(Decimal("0.25")), "ยี่สิบห้าสตางค์"),
            ("a Decimal as a whole number", standard.Round(1.25, Decimal(1)), 1.3),
            ("all digits of an amount", standard.FixMoneyDecimal(amount, False), amount),
            ("four decimals of it", str(standard.FixMoneyDecimal(1.5, False)), "1.0000"),
            ("a number beyond 32 bits", standard.Floor(2**40), 2.0**40),
            ("a Boolean is -1", standard.Floor(True), -1.0),
            ("None is no value", standard.Null2Zero(None), 0.0),
            ("left out", standard.Null2Zero(), 0.0),
            ("an enumerator", standard.FormatTDate2(NOW, CTDateType.ZQ7YYYY_MM_DD), "2024-01-15"),
            ("by keyword", baht.MoneyText(useEnglish=True, inDouble=1), "One baht"),
            ("a list as argument", standard.ExecuteProgram("sh", ("-c", "exit 3"), 30), 3),
            ("a list", standard.ArrayString("a", "b"), ["a", "b"]),
            ("Latin-1", standard.ReverseString("aé"), "éa"),
            ("Thai", standard.ReverseString("กข"), "ขก"),
            ("a single surrogate", standard.AddList("\ud83d", "a"), "\ud83d;a"),
            ("a pair is one character", standard.AddList("a", "\ud83d\ude00"), "a;😀"),
            ("a character beyond 16 bits", standard.AddList("😀", "a"), "😀;a"),
            ("a pair that results", standard.ReverseString("\ude00\ud83d"), "😀"),
            ("an empty text", standard.ReverseString(""), ""),
        ]:
            with self.subTest(reason):
                self.assertEqual(got, wanted)
                self.assertIs(type(got), type(wanted))

    def test_refused(self):
        standard = thai()
        call = standard.AddMonth
        aware = datetime(2024, 1, 1, tzinfo=timezone.utc)
        for reason, arguments, named, error, number in [
            ("an aware datetime", [aware], {}, TypeError, None),
            ("year 99", [datetime(99, 12, 31)], {}, RunTimeError, 5),
            ("None", [None], {}, RunTimeError, 13),
            ("a text that is not a date", ["x"], {}, RunTimeError, 13),
            ("a list", [["a"]], {}, RunTimeError, 13),
            ("a list of numbers", [[1]], {}, TypeError, None),
            ("bytes", [b"1"], {}, TypeError, None),
            ("any object", [object()], {}, TypeError, None),
            ("a number of 400 digits", [10**400], {}, RunTimeError, 6),
            ("a day after 9999", [3e6], {}, RunTimeError, 6),
            ("a missing argument", [], {}, WrongCall, 449),
            ("too many", [NOW, 1, 1], {}, WrongCall, 450),
            ("two for one", [NOW], {"InDate": NOW}, WrongCall, 450),
            ("another keyword", [NOW], {"Months": 1}, WrongCall, 448),
            ("a keyword in another case", [NOW], {"numberofmonth": 1}, WrongCall, 448),
        ]:
            with self.subTest(reason):
                with self.assertRaises(error) as raised:
                    call(*arguments, **named)
                if number is not None:
                    self.assertEqual(raised.exception.number, number)
                    self.assertEqual(raised.exception.operation, "AddMonth")

    def test_errors(self):
        with self.assertRaises(RunTimeError) as raised:
            thai().CTDATE("1/\ud83d/2567")
        error = raised.exception
        parts = (error.number, error.class_name, error.operation, error.parameter, error.input)
        self.assertEqual(parts, (13, "StandardObject", "CTDATE", "iText", "1/\ud83d/2567"))
        self.assertIn("StandardObject.CTDATE: type mismatch (error 13)", str(error))
        self.assertTrue(issubclass(WrongCall, TypeError))
        again = pickle.loads(pickle.dumps(error))
        self.assertEqual((str(again), again.parameter), (str(error), "iText"))

    def test_dates_survive(self):
        """Through the library and back: the time of day of each, over the range of dates."""
        standard = StandardObject()
        same_day = (ZQ7ConditionType.ZQ7AfterInvoiceDate, 0, 0)
        times = [timedelta(seconds=s) for s in (0, 1, 30599, 43200, 86399)]
        times += [timedelta(milliseconds=ms) for ms in (1, 999, 86399999)]
        for year in (100, 1899, 1900, 2024, 9999):
            for time_of_day in times:
                moment = datetime(year, 12, 30) + time_of_day
                with self.subTest(moment=moment):
                    self.assertEqual(standard.GetConditionDueDate(moment, *same_day), moment)
        # Microseconds survive near today, and are 40 apart at the end.
        for moment in (NOW.replace(microsecond=1), datetime(2024, 12, 31, 23, 59, 59, 999999)):
            self.assertEqual(standard.GetConditionDueDate(moment, *same_day), moment)
        for year, month, day in ((100, 1, 1), (1899, 12, 29), (9999, 12, 31)):
            last = datetime(year, month, day, 23, 59, 59, 999999)
            result = standard.GetConditionDueDate(last, *same_day)
            self.assertLess(abs(result - last), timedelta(microseconds=41))
            self.assertEqual(result.day, day)


class Objects(unittest.TestCase):
    def test_members(self):
        made = grid()
        made.Setvalue(4, 0, 1.5)
        self.assertEqual((made.Rows, made.Cols), (5, 3))
        for reason, statement in [
            ("a property that is read alone", lambda: setattr(made, "Rows", 1)),
            ("a misspelt property", lambda: setattr(made, "Row", 1)),
            ("a property that is set alone", lambda: SerialPort().Settings),
        ]:
            with self.subTest(reason), self.assertRaises(AttributeError):
                statement()
        for reason, statement in [
            ("a method of another class", lambda: GridValueObject.Clear(StandardObject())),
            ("not initialised", lambda: GridValueObject.__new__(GridValueObject).Clear()),
            ("no object", lambda: GridValueObject.Clear()),
            ("initialised twice", lambda: made.__init__()),
            ("copied", lambda: copy.copy(made)),
            ("a service that is not callable", lambda: StandardObject(message_box=1)),
            ("an unknown convention", lambda: StandardObject(convention="thai")),
            ("a handler that is not callable", lambda: setattr(made, "CellDataChange", 1)),
            ("the base", lambda: zq7standard.Object()),
        ]:
            refusals = (TypeError, RuntimeError, ValueError, RunTimeError)
            with self.subTest(reason), self.assertRaises(refusals):
                statement()

    def test_introspection(self):
        signature = inspect.signature(BahtStringObject().BahtString)
        self.assertEqual(list(signature.parameters)[:3], ["inDouble", "useBreak", "useEnglish"])
        self.assertEqual(signature.return_annotation, str)
        parameter = signature.parameters["useBreak"]
        self.assertEqual((parameter.default, parameter.annotation), (False, bool))
        layout = inspect.signature(StandardObject.FormatTDate2).parameters["DateType"]
        self.assertIn(CTDateType, layout.annotation.__args__)
        self.assertIn("date", StandardObject.CTDATE.__doc__)
        for described in (StandardObject, GridValueObject.Rows, CTDateType, RunTimeError):
            self.assertTrue(described.__doc__)
        self.assertTrue(inspect.isroutine(StandardObject.CTDATE))
        self.assertEqual(KetRootType.HKEY_CURRENT_USER, -(2**31) + 1)

    def test_subclass(self):
        class Ledger(GridValueObject):
            def __init__(self, columns):
                super().__init__()
                self.name = "ledger"
                self.SetCols(columns)

        self.assertEqual(Ledger(4).Cols, 4)

    def test_cycles_are_collected(self):
        class Shop:
            def __init__(self):
                self.grid = grid()
                self.grid.CellDataChange = self.changed
                self.standard = StandardObject(clock=self.now)

            def now(self):
                return NOW

            def changed(self, row, column):
                pass

        shop = weakref.ref(Shop())
        gc.collect()
        self.assertIsNone(shop())


class Control:
    """A serial control of the host's own: what was set, and an error for one property."""

    def __init__(self, failing="", error=None):
        object.__setattr__(self, "sets", [])
        object.__setattr__(self, "failure", (failing, error))
        object.__setattr__(self, "PortOpen", False)

    def __setattr__(self, name, value):
        if name == self.failure[0]:
            raise self.failure[1]
        object.__setattr__(self, name, value)
        self.sets.append((name, value))


class Services(unittest.TestCase):
    def test_callables(self):
        messages = []
        peripheral = PeripheralObject(message_box=lambda *message: messages.append(message))
        self.assertEqual(peripheral.OpenDraw(SerialPort(serial_devices={7: "/none"}), "kick", 7), 1)
        self.assertIn("8002", messages[0][1])
        standard = StandardObject(
            clock=lambda: NOW, convention=lambda: "dmy-buddhist", random=lambda: 0.5, os="x"
        )
        self.assertEqual(standard.GETValidDate("today"), datetime(2024, 1, 15))
        self.assertEqual(standard.CTDATE("15/1/2567"), datetime(2024, 1, 15))
        self.assertEqual(standard.Random(0, 9), 5)

    def test_drives_and_registry(self):
        with tempfile.TemporaryDirectory() as folder:
            settings = zq7standard.ASCIIObject(drives={"D": pathlib.Path(folder)})
            settings.Setvalue("D:\\set.ini", "Port", "กข")
            self.assertEqual(settings.GetValue("D:\\set.ini", "Port"), "กข")
            self.assertTrue((pathlib.Path(folder) / "set.ini").exists())
        registry = RegistryObject(memory_registry=True)
        registry.UpdateKeyValueLong(KetRootType.HKEY_CURRENT_USER, "App", "Last", 7)
        self.assertEqual(registry.GetKeyValueLong(KetRootType.HKEY_CURRENT_USER, "App", "Last"), 7)

    def test_host_devices(self):
        control = Control()
        self.assertEqual(PeripheralObject().SendCommMsg(control, "kick", 3), 0)
        self.assertIn(("Output", "kick"), control.sets)
        self.assertEqual(control.sets[0], ("CommPort", 3))
        failing = Control("PortOpen", RunTimeError(8005, "in use"))
        self.assertEqual(PeripheralObject().SendCommMsg(failing, "kick", 3), 8005)
        self.assertEqual(PeripheralObject().SendCommMsg(None, "kick", 3), 91)
        with self.assertRaises(RunTimeError) as raised:
            PeripheralObject().SendCommMsg("SerialPort", "kick", 3)
        self.assertEqual(raised.exception.number, 13)

    def test_pictures(self):
        class Picture:
            Width = 20
            Height = 10.5
            Picture = PNG.read_bytes()

        printer = PrintObject(silent_printers=["PDF"])
        printer.PrintStart()
        file = PrintPicture(str(PNG).replace("/", "\\"))
        self.assertGreater(file.Width, 0)
        for picture in (Picture(), file):
            self.assertEqual(printer.PrintGraphicObject(picture, 1, 2), 0)
        with self.assertRaises(RunTimeError):
            printer.PrintGraphicObject(None)

    def test_what_python_raises(self):
        """It reaches the caller as itself, also where the library would go on."""
        mine = RunTimeError(4711, "mine")
        nested = []

        def in_event(error):
            made = grid()

            def changed(row, column):
                nested.append(made.GetValue(row, column))
                raise error

            made.CellDataChange = changed
            return lambda: made.Setvalue(0, 0, 2.0)

        def in_message_box(error):
            def show(title, text):
                raise error

            peripheral = PeripheralObject(message_box=show)
            return lambda: peripheral.OpenDraw(None, "kick", 7)

        def in_clock(error):
            def now():
                raise error

            return lambda: StandardObject(clock=now, convention="dmy").GETValidDate("")

        def in_control(error):
            return lambda: PeripheralObject().SendCommMsg(Control("Output", error), "kick", 1)

        for place in (in_event, in_message_box, in_clock, in_control):
            for error in (KeyError("x"), KeyboardInterrupt()):
                with self.subTest(place.__name__, error=error):
                    with self.assertRaises(type(error)) as raised:
                        place(error)()
                    self.assertIs(raised.exception, error)
        for place in (in_event, in_clock):
            with self.subTest(place.__name__):
                with self.assertRaises(RunTimeError) as raised:
                    place(mine)()
                self.assertIs(raised.exception, mine)
        self.assertEqual(nested, [2.0] * 3)
        with self.assertRaises(TypeError):
            StandardObject(clock=lambda: None, convention="dmy").GETValidDate("")


class Threads(unittest.TestCase):
    def in_thread(self, call):
        """What `call` raises in a thread of its own."""
        raised = []

        def run():
            try:
                call()
            except RuntimeError as error:
                raised.append(str(error))

        thread = threading.Thread(target=run)
        thread.start()
        thread.join()
        return raised

    def test_busy(self):
        made, port = grid(), SerialPort()
        refused = []

        def changed(row, column):
            made.SumCol(0)  # the same thread may
            refused.extend(self.in_thread(lambda: made.Clear()))
            refused.extend(self.in_thread(lambda: made.Rows))

        made.CellDataChange = changed
        made.Setvalue(0, 0, 1.0)
        peripheral = PeripheralObject(
            message_box=lambda title, text: refused.extend(self.in_thread(lambda: port.PortOpen))
        )
        peripheral.OpenDraw(port, "kick", 99)
        self.assertEqual(len(refused), 3)
        self.assertIn("in use by another thread", refused[0])
        self.assertEqual(self.in_thread(made.Clear) + self.in_thread(lambda: port.PortOpen), [])

    def hammer(self, calls, seconds=1.0):
        """Runs the calls in two threads; returns how many were done and refused."""
        end = time.monotonic() + seconds
        counts = {"done": 0, "refused": 0}
        unexpected = []
        lock = threading.Lock()

        def run():
            while time.monotonic() < end and not unexpected:
                for call in calls:
                    outcome = "done"
                    try:
                        call()
                    except RuntimeError as error:
                        outcome = "refused" if "in use" in str(error) else unexpected.append(error)
                    except Exception as error:
                        unexpected.append(error)
                    with lock:
                        counts[outcome] = counts.get(outcome, 0) + 1

        threads = [threading.Thread(target=run) for _ in range(2)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(unexpected, [])
        return counts

    def test_hammered_grid(self):
        made = grid()
        made.CellDataChange = lambda row, column: time.sleep(0)
        calls = [lambda: made.Setvalue(50, 1, 1.0), made.Clear, lambda: made.SumCol(1),
                 lambda: made.RemaveItem(0), lambda: made.Rows]  # fmt: skip
        counts = self.hammer(calls)
        self.assertGreater(counts["done"], 100)
        self.assertGreater(counts["refused"], 0)

    def test_hammered_printer(self):
        printer = PrintObject(silent_printers=["PDF", "Other"])
        calls = [printer.PrintStart, lambda: printer.PrintGraphicText("รวม", 20, 40),
                 lambda: printer.SelectPrinter("Other", 1, 9, 7), printer.PrintOut]  # fmt: skip
        self.assertGreater(self.hammer(calls)["done"], 100)

    def test_lock_is_released(self):
        try:
            standard = StandardObject(sodium_cipher=True)
        except ValueError as error:
            self.skipTest(str(error))
        thread = threading.Thread(target=lambda: standard.Encrypt("text", "password"))
        thread.start()
        turns = 0
        while thread.is_alive():
            time.sleep(0.001)
            turns += 1
        self.assertGreater(turns, 5)


if __name__ == "__main__":
    unittest.main()
