// Tests of ZQ7Standard.cs. Rows name what they are about; the program ends with the number of
// those that fail.
//
//     mono Tests.exe FOLDER [pages]    uses the empty folder for files; prints pages too

using System;
using System.Collections.Generic;
using System.Diagnostics;
using System.IO;
using System.Linq;
using System.Runtime.CompilerServices;
using System.Threading;
using ZQ7Standard;

internal static class Tests {
  private static readonly DateTime s_now = new DateTime(2024, 1, 15, 9, 30, 0);
  private static string s_folder;
  private static int s_failures;

  private static int Main(string[] arguments) {
    s_folder = arguments[0];
    Results();
    Errors();
    Dates();
    Amounts();
    HostServices();
    HostDevices();
    Pictures();
    if (arguments.Length > 1) Pages();
    Exceptions();
    Events();
    Collections();
    Lifetimes();
    Memory();
    Threads();
    Console.WriteLine(s_failures == 0 ? "all passed" : s_failures + " failed");
    return s_failures == 0 ? 0 : 1;
  }

  // --- What crosses ---

  private static void Results() {
    StandardObject standard = NewStandard();
    var baht = new BahtStringObject();
    var bits = new BitByteObject();
    var empty = new Services();
    Rows(new Table {
      { "text, Thai", () => baht.BahtString(121.5), "หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์" },
      { "text, empty", () => baht.MonthText(1, true, true), "" },
      { "text beyond the basic plane", () => standard.TrimSpaceToOne("𝄞  b"), "𝄞 b" },
      { "text with a NUL", () => standard.AddList("a\0b", "c"), "a\0b;c" },
      { "null as a required text", () => standard.StrVal(null), 0.0 },
      { "null as an optional text", () => baht.MoneyText(1, NewUnit: null), "หนึ่งบาทถ้วน" },
      { "a named argument", () => baht.BahtString(1, useEnglish: true), "One baht" },
      { "double", () => standard.Floor(-2.5), -2.0 },
      { "single", () => standard.StrSng("1.1"), 1.1f },
      { "integer and byte", () => bits.BitRead(5, 1), (short)-1 },
      { "long", () => bits.Base26To10("AA"), 27 },
      { "boolean", () => standard.IsTDate("15/1/2567"), true },
      { "date", () => standard.CTDATE("15/1/2567"), s_now.Date },
      { "date with a time", () => standard.Str2TIME("9:30").TimeOfDay, s_now.TimeOfDay },
      { "enumeration in", () => standard.FormatTDate2(s_now, CTDateType.ZQ7DMMMBBBB),
        "15 มกราคม 2567" },
      { "enumeration as default", () => standard.Instr2(1, "abc", "C"), 0 },
      { "enumeration chosen",
        () => standard.Instr2(1, "abc", "C", ZQ7CompareMethod.ZQ7CompareText), 3 },
      { "list as argument", () => standard.ExecuteProgram(
            "sh", new[] { "-c", "[ \"$1\" = 'ก \"b' ] && exit 3", null, "ก \"b" }, 30), 3 },
      { "list", () => string.Join("|", standard.ArrayString2("a", "", "c")), "a|c" },
      { "long list", () => standard.GETMonthTextArray(true, true)[12], "ธันวาคม" },
      { "left out and given differ",
        () => standard.FormatTimeleft(1.5) == standard.FormatTimeleft(1.5, false), false },
      { "nullable, null", () => standard.Null2Zero(null), 0.0 },
      { "nullable, given", () => standard.Null2Zero(2.5), 2.5 },
      { "property", () => new GridValueObject().Cols, -1 },
      { "property set", () => new ASCIIObject { DisableMsgLevel = 2 }.DisableMsgLevel, (short)2 },
      { "enumeration as a result", () => ReadImage().ImageType, eImageType.itPNG },
      { "services with nothing set", () => new GridValueObject(empty).Rows, 1 },
    });
  }

  private static CImageInfo ReadImage() {
    File.WriteAllBytes(Path.Combine(s_folder, "dot.png"), s_png);
    var image = new CImageInfo(new Services { Drives = DriveC() });
    image.ReadImageInfo(@"C:\dot.png");
    return image;
  }

  private static void Errors() {
    StandardObject standard = NewStandard();
    Rows(new Table {
      { "what the library raises", () => Error(() => standard.CTDATE("1/15/2567")),
        "13 StandardObject.CTDATE(iText) type mismatch: 1/15/2567" },
      { "with a number", () => Error(() => new GridValueObject().GetValue(-1, 0)),
        "9 GridValueObject.GetValue(Row) subscript out of range: -1" },
      { "an enumeration's member that is not",
        () => Number(() => standard.Instr2(1, "a", "b", (ZQ7CompareMethod)7)), 5 },
      { "the whole message", () => Thrown(() => standard.CTDATE("1/15/2567")).Message,
        "StandardObject.CTDATE: type mismatch (error 13): iText: \"1/15/2567\"" },
      { "a date before the year 100", () => Number(() => standard.AddMonth(DateTime.MinValue)), 5 },
      { "the day before the year 100",
        () => Number(() => standard.AddMonth(new DateTime(99, 12, 31))), 5 },
      { "an amount above the range",
        () => Number(() => standard.FixMoneyDecimal(922337203685477.5808m, true)), 6 },
      { "the largest decimal",
        () => Number(() => standard.FixMoneyDecimal(decimal.MaxValue, true)), 6 },
      { "no object", () => Number(() => new PrintObject().PrintGraphicObject(null)), 5 },
      { "a picture that is not there",
        () => Number(() => PrintPicture.FromFile(@"C:\none.png")), 53 },
      { "a drive that is not a letter", () => Number(() => new GridValueObject(
          new Services { Drives = new Dictionary<char, string> { ['1'] = "/" } })), 5 },
      { "after Dispose", () => Disposed().Rows, typeof(ObjectDisposedException) },
      { "services after Dispose", () => {
        Services services = NewServices();
        new StandardObject(services).Dispose();
        services.Dispose();
        return new StandardObject(services);
      }, typeof(ObjectDisposedException) },
      { "services in use", () => {
        Services services = NewServices();
        new StandardObject(services).Dispose();
        return services.Clock = null;
      }, typeof(InvalidOperationException) },
    });
  }

  private static GridValueObject Disposed() {
    var grid = new GridValueObject();
    grid.Dispose();
    grid.Dispose();
    return grid;
  }

  /// A date that the library keeps as it is, and what the library takes it for.
  private static void Dates() {
    StandardObject standard = NewStandard();
    string wrong = null;
    Action<DateTime> tried = date => {
      DateTime same = standard.GetConditionDueDate(date, 0, 0, 0);
      if (same != date) wrong = wrong ?? $"{date:o} came back as {same:o}";
      // A year from 2400 on counts as Buddhist, and day 0 as no date: both are written differently.
      if (date.Year >= 2400 || date == new DateTime(1899, 12, 30)) return;
      string seen = standard.FormatEnglish(date, "yyyy-mm-dd hh:nn:ss");
      if (seen != date.ToString("yyyy-MM-dd HH:mm:ss")) wrong = wrong ?? $"{date:o} was {seen}";
    };
    DateTime first = new DateTime(100, 1, 1);
    int second = 0;
    for (DateTime day = first; day.Year < 9998; day = day.AddDays(61)) {
      tried(day.AddSeconds(second = (second + 7919) % 86400));
    }
    foreach (DateTime day in new[] { first, new DateTime(1899, 12, 29), new DateTime(1899, 12, 30),
                                     new DateTime(2024, 2, 29), new DateTime(9999, 12, 31) }) {
      for (second = 0; second < 86400; second += 13) tried(day.AddSeconds(second));
      tried(day.AddSeconds(86399));
    }
    Equal("every kind of date", wrong, null);
    DateTime precise = s_now.AddMilliseconds(123);
    Equal("milliseconds", standard.GetConditionDueDate(precise, 0, 0, 0), precise);
    DateTime midnight = s_now.Date.AddDays(1);
    Equal("the last tick of a day", standard.GetConditionDueDate(midnight.AddTicks(-1), 0, 0, 0),
          midnight.AddMilliseconds(-1));
  }

  private static void Amounts() {
    StandardObject standard = NewStandard();
    // It returns what is below 0 as it is.
    foreach (var row in new Dictionary<decimal, decimal> {
      [-1.25m] = -1.25m, [-1.00005m] = -1m, [-1.00015m] = -1.0002m, [-0.00005000001m] = -0.0001m,
      [-922337203685477.5808m] = -922337203685477.5808m }) {
      Equal("amount " + row.Key, standard.FixMoneyDecimal(row.Key, true), row.Value);
    }
    Equal("the largest amount", standard.FixMoneyDecimal(922337203685477m, true),
          922337203685477m);
  }

  // --- What the host brings ---

  private static void HostServices() {
    int asked = 0;
    Services services = NewServices();
    services.Clock = () => {
      ++asked;
      return s_now;
    };
    var messages = new List<string>();
    services.MessageBox = (title, text, isError) => messages.Add($"{title}|{text}|{isError}");
    services.Drives = DriveC();
    services.MemoryRegistry = true;
    var standard = new StandardObject(services);
    Equal("the clock", standard.CTYEAR(), (short)2567);
    Equal("the clock was asked", asked > 0, true);
    Equal("the convention", new StandardObject(new Services {
      Convention = () => new DateConvention(false, false) }).CTDATE("1/15/2024"), s_now.Date);

    var files = new ASCIIObject(services) { DisableMsgLevel = 1 };
    files.Setvalue(@"C:\set.ini", "Port", "ก");
    Equal("the drive", files.GetValue(@"C:\set.ini", "Port"), "ก");
    Equal("the drive's file", File.Exists(Path.Combine(s_folder, "set.ini")), true);
    files.Setvalue(@"C:\none\set.ini", "Port", "1");
    Equal("the message", string.Join(" ", messages), "Warning|Not found specified folder.|False");

    const KetRootType Root = KetRootType.HKEY_CURRENT_USER;
    new RegistryObject(services).UpdateKeyValueLong(Root, @"Software\App", "Last", 7);
    Equal("the registry is shared", new RegistryObject(services).GetKeyValueLong(
        Root, @"Software\App", "Last"), 7);
    Equal("and no other", new RegistryObject(new Services { MemoryRegistry = true })
        .GetKeyValueLong(Root, @"Software\App", "Last"), 0);

    services.Dispose();
    Equal("after Dispose of the services", standard.CTYEAR(), (short)2567);
  }

  private sealed class Port : ISerialPort {
    internal readonly List<string> Calls = new List<string>();
    internal Exception Failure;
    private bool _open;

    public int CommPort { set => Add("port " + value); }
    public string Settings { set => Add(value); }
    public int InputLen { set => Add("length " + value); }
    public bool PortOpen {
      get => _open;
      set => Add((_open = value) ? "open" : "close");
    }
    public string Output {
      set {
        if (Failure != null) throw Failure;
        Add(value);
      }
    }

    private void Add(string call) => Calls.Add(call);
  }

  private static void HostDevices() {
    var port = new Port();
    using (SerialPort line = SerialPort.From(port))
    using (var devices = new PeripheralObject()) {
      Equal("a command", devices.SendCommMsg(line, "\u001bก", 3), (short)0);
      Equal("to the host's port", string.Join(" ", port.Calls),
            "port 3 9600,N,8,1 length 0 open \u001bก close");
      line.Settings = "300,E,7,1";
      Equal("its property", port.Calls.Last(), "300,E,7,1");
      Equal("is open", line.PortOpen, false);
      port.Failure = new RunTimeException(8020, "jammed");
      Equal("its failure is a result", devices.SendCommMsg(line, "x", 3), (short)8020);
      port.Failure = new IOException("gone");
      Equal("without a number", devices.SendCommMsg(line, "x", 3), (short)440);
      Equal("set, it is thrown", Thrown(() => line.Output = "x"), port.Failure);
      Equal("no port", devices.SendCommMsg(null, "x", 3), (short)91);
    }
    Equal("no port to wrap", Thrown(() => SerialPort.From(null)).GetType(),
          typeof(ArgumentNullException));
  }

  private sealed class Picture : IPicture {
    internal readonly List<WeakReference> Given = new List<WeakReference>();

    public float Width => 20;
    public float Height => 10;
    public byte[] Bytes {
      get {
        var bytes = (byte[])s_png.Clone();
        Given.Add(new WeakReference(bytes));
        return bytes;
      }
    }
  }

  private static void Pictures() {
    using (PrintPicture picture = PrintPicture.From(new Picture())) {
      Equal("the width of a picture", picture.Width, 20f);
      Equal("its height", picture.Height, 10f);
    }
  }

  /// Pictures stay where they are until the page is printed.
  private static void Pages() {
    var printer = new PrintObject(NewServices());
    printer.PrintStart();
    var sources = new List<Picture>();
    for (int i = 0; i < 20; ++i) {
      sources.Add(new Picture());
      using (PrintPicture picture = PrintPicture.From(sources[i])) {
        printer.PrintGraphicObject(picture, 10, 10 * i);
        Collect();
        printer.PrintGraphicObject(picture, 40, 10 * i);
      }
    }
    Equal("bytes are asked for once", sources.TrueForAll(source => source.Given.Count == 1), true);
    File.WriteAllBytes(Path.Combine(s_folder, "logo.png"), s_png);
    printer.PrintGraphicObject(
        PrintPicture.FromFile(@"C:\logo.png", new Services { Drives = DriveC() }), 50, 50);
    printer.PrintOut();
    string home = Environment.GetEnvironmentVariable("HOME");
    printer.Dispose();
    Collect();
    Equal("bytes are given back", sources.Count(source => source.Given[0].IsAlive) < 5, true);
    Equal("a page", Directory.GetFiles(home, "*.pdf", SearchOption.AllDirectories).Length, 1);
  }

  /// What a function of the host's throws reaches the caller as it is.
  private static void Exceptions() {
    Exception failure = null;
    Services services = NewServices();
    services.Clock = () => failure == null ? s_now : throw failure;
    services.MessageBox = (title, text, isError) => throw new IOException("nobody looks");
    services.Drives = DriveC();
    var standard = new StandardObject(services);
    foreach (Exception each in new Exception[] {
      new IOException("no clock"), new RunTimeException(1234, "ไม่มีนาฬิกา"),
      new InvalidOperationException("") }) {
      failure = each;
      Exception thrown = Thrown(() => standard.CTYEAR());
      Equal("thrown as it is: " + each.GetType().Name, thrown, each);
      Equal("with its stack", thrown.StackTrace.Contains("Exceptions"), true);
    }
    failure = null;
    var files = new ASCIIObject(services) { DisableMsgLevel = 1 };
    files.Setvalue(@"C:\none\set.ini", "Port", "1");
    Exception later = Thrown(() => standard.CTDATE("x"));
    Equal("a failure swallowed before is not the cause", later.InnerException, null);

    var grid = NewGrid();
    grid.CellDataChange += (row, column) => {
      files.Setvalue(@"C:\none\set.ini", "Port", "1");
      throw new IOException("not this cell");
    };
    Equal("inside another call", Thrown(() => grid.Setvalue(0, 0, 1)).Message, "not this cell");
    Equal("an error of the library inside an event", Number(() => {
      var other = NewGrid();
      other.CellDataChange += (row, column) => standard.CTDATE("1/15/2567");
      other.Setvalue(0, 0, 1);
    }), 13);
  }

  // --- Events ---

  private static void Events() {
    GridValueObject grid = NewGrid();
    var seen = new List<string>();
    GridValueObject.CellDataChangeHandler first = (row, column) => seen.Add($"a{row},{column}");
    GridValueObject.CellDataChangeHandler second = (row, column) => seen.Add($"b{row},{column}");
    Action<string, Action, string> step = (name, action, expected) => {
      action();
      seen.Clear();
      grid.Setvalue(0, 2, 1);
      Equal(name, string.Join(" ", seen), expected);
    };
    step("no handler", () => {}, "");
    step("one handler", () => grid.CellDataChange += first, "a0,2");
    step("two in their order", () => grid.CellDataChange += second, "a0,2 b0,2");
    step("one is removed", () => grid.CellDataChange -= first, "b0,2");
    step("removed again", () => grid.CellDataChange -= first, "b0,2");
    step("a null", () => grid.CellDataChange += null, "b0,2");
    step("another event", () => grid.DataChange += () => seen.Add("never"), "b0,2");
    step("the last is removed", () => grid.CellDataChange -= second, "");
    step("added again", () => grid.CellDataChange += first, "a0,2");

    GridValueObject.CellDataChangeHandler once = null;
    once = (row, column) => {
      grid.CellDataChange -= once;
      seen.Add("once");
    };
    step("one that removes itself", () => grid.CellDataChange += once, "a0,2 once");
    step("is gone", () => {}, "a0,2");
    step("alone too", () => {
      grid.CellDataChange -= first;
      grid.CellDataChange += once;
    }, "once");
    step("and is gone", () => {}, "");

    grid.CellDataChange += (row, column) => {
      if (row < 3) grid.Setvalue(row + 1, column, grid.GetValue(row, column) + 1);
    };
    step("a handler that calls", () => grid.SetRows(4), "");
    Equal("what it set", grid.GetValue(3, 2), 4.0);
    grid.CellDataChange += (row, column) => grid.Dispose();
    Equal("disposed of inside", grid.Setvalue(3, 0, 1), true);
    Equal("is disposed of", Thrown(() => grid.Clear()).GetType(), typeof(ObjectDisposedException));
  }

  /// Handlers, services and pictures stay while they are needed, whenever a collection comes.
  private static void Collections() {
    GridValueObject grid = NewGrid();
    int raised = Subscribe(grid);
    var counter = new int[1];
    AddCounter(grid, counter);
    StandardObject standard = NewStandard();
    for (int i = 0; i < 50; ++i) {
      Collect();
      grid.Setvalue(0, 0, i);
      if (standard.CTYEAR() != 2567) ++s_failures;
    }
    Equal("handlers of a kept object", counter[0] + raised, 50);

    // A collection inside a call, while what the call came from is used no more.
    int inside = 0;
    for (int i = 0; i < 20; ++i) {
      NewGridThatCollects(() => ++inside).Setvalue(0, 0, 1);
      NewStandardThatCollects().CTYEAR();
    }
    Equal("a collection inside a call", inside, 20);
  }

  /// Returns 0; what it makes can be collected.
  [MethodImpl(MethodImplOptions.NoInlining)]
  private static int Subscribe(GridValueObject grid) {
    int raised = 0;
    GridValueObject.CellDataChangeHandler handler = (row, column) => ++raised;
    grid.CellDataChange += handler;
    grid.CellDataChange -= handler;
    return raised;
  }

  [MethodImpl(MethodImplOptions.NoInlining)]
  private static void AddCounter(GridValueObject grid, int[] counter) =>
      grid.CellDataChange += (row, column) => ++counter[0];

  [MethodImpl(MethodImplOptions.NoInlining)]
  private static GridValueObject NewGridThatCollects(Action action) {
    GridValueObject grid = NewGrid();
    grid.CellDataChange += (row, column) => {
      Collect();
      action();
    };
    return grid;
  }

  [MethodImpl(MethodImplOptions.NoInlining)]
  private static StandardObject NewStandardThatCollects() {
    Services services = NewServices();
    services.Clock = () => {
      Collect();
      return s_now;
    };
    return new StandardObject(services);
  }

  /// What is used no more goes away, though its handlers know it.
  private static void Lifetimes() {
    const int Count = 100;
    var rows = new Dictionary<string, Func<object>> {
      ["an object with a handler"] = () => {
        GridValueObject grid = NewGrid();
        grid.CellDataChange += (row, column) => grid.Clear();
        return grid;
      },
      ["services that know an object"] = () => {
        Services services = NewServices();
        StandardObject standard = null;
        services.Clock = () => standard.GETBlankDate();
        standard = new StandardObject(services);
        return services;
      },
      ["a picture"] = () => {
        var picture = new Picture();
        PrintPicture.From(picture);
        return picture;
      },
      ["a serial line"] = () => {
        var port = new Port();
        SerialPort.From(port).PortOpen = true;
        return port;
      },
      ["refused services"] = () => {
        Services services = NewServices();
        services.SerialDevices = new Dictionary<int, string> { [0] = "/dev/null" };
        Thrown(() => new StandardObject(services));
        return services;
      }
    };
    foreach (var row in rows) {
      var left = new List<WeakReference>();
      // On a thread of its own, so that no reference is left on this one's stack.
      var maker = new Thread(() => {
        for (int i = 0; i < Count; ++i) left.Add(new WeakReference(row.Value()));
      });
      maker.Start();
      maker.Join();
      for (int i = 0; i < 5; ++i) Collect();
      // Mono finds references by guessing, so a few may stay.
      int alive = left.Count(reference => reference.IsAlive);
      Equal(row.Key + " is collected", alive < Count / 10, true);
    }
  }

  /// What the library wrote is given back to it.
  private static void Memory() {
    const int Calls = 50000;
    var baht = new BahtStringObject();
    StandardObject standard = NewStandard();
    Func<long> used = () => {
      for (int i = 0; i < Calls; ++i) {
        baht.BahtString(1234.56);
        if (i % 10 == 0) standard.GETMonthTextArray(true, true);
      }
      Process self = Process.GetCurrentProcess();
      self.Refresh();
      return self.WorkingSet64;
    };
    used();
    long before = used();
    Equal("memory of results", used() - before < Calls * 20, true);
  }

  /// Errors belong to their thread, and objects are released on the finalizer's.
  private static void Threads() {
    int wrong = 0;
    Thread[] threads = Enumerable.Range(0, 4).Select(number => new Thread(() => {
      for (int i = 0; i < 300; ++i) {
        GridValueObject grid = NewGrid();
        int sum = 0;
        grid.CellDataChange += (row, column) => sum += column;
        grid.Setvalue(0, number % 3, 1);
        string text = number + "/x/" + i;
        var error = (RunTimeException)Thrown(() => NewStandard().CTDATE(text));
        var own = new IOException("the host's");
        grid.CellDataChange += (row, column) => throw own;
        bool same = Thrown(() => grid.Setvalue(0, 0, 1)) == own;
        if (sum != number % 3 || error.Input != text || !same) Interlocked.Increment(ref wrong);
        if (i % 50 == 0) Collect();
      }
    })).ToArray();
    foreach (Thread thread in threads) thread.Start();
    foreach (Thread thread in threads) thread.Join();
    Equal("threads", wrong, 0);
  }

  // --- Support ---

  /// A PNG file of one grey dot.
  private static readonly byte[] s_png = Convert.FromBase64String(
      "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAAAAAA6fptVAAAACklEQVR4nGNoAAAAggCBd81ytgAAAABJRU5ErkJggg==");

  private static Services NewServices() => new Services {
    Clock = () => s_now, Convention = () => new DateConvention(true, true) };

  private static StandardObject NewStandard() => new StandardObject(NewServices());

  private static Dictionary<char, string> DriveC() =>
      new Dictionary<char, string> { ['C'] = s_folder };

  private static GridValueObject NewGrid() {
    var grid = new GridValueObject();
    grid.SetCols(3);
    return grid;
  }

  private static void Collect() {
    GC.Collect();
    GC.WaitForPendingFinalizers();
  }

  private static Exception Thrown(Action action) {
    try {
      action();
      return null;
    } catch (Exception thrown) {
      return thrown;
    }
  }

  private static int Number(Action action) => ((RunTimeException)Thrown(action)).Number;

  private static string Error(Action action) {
    var error = (RunTimeException)Thrown(action);
    return $"{error.Number} {error.ClassName}.{error.Operation}({error.Parameter}) {error.Text}: " +
           error.Input;
  }

  /// A row expects a value, or the type of an exception.
  private sealed class Table : List<Action> {
    internal void Add(string name, Func<object> call, object expected) => Add(() => {
      object actual = null;
      Exception thrown = Thrown(() => actual = call());
      if (thrown != null) actual = expected is Type ? thrown.GetType() : (object)thrown;
      Equal(name, actual, expected);
    });
  }

  private static void Rows(Table rows) => rows.ForEach(row => row());

  private static void Equal(string name, object actual, object expected) {
    if (Equals(actual, expected)) return;
    ++s_failures;
    Console.WriteLine($"{name}: {actual ?? "null"} instead of {expected ?? "null"}");
  }
}
