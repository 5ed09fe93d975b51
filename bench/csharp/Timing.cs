// Nanoseconds of processor time that a call from C# takes, each the median of 21 repetitions of
// 100,000 calls:
//
//     mcs -unsafe -optimize+ -out:Timing.exe bindings/csharp/ZQ7Standard.cs bench/csharp/Timing.cs
//     LD_LIBRARY_PATH=$PWD/build/release mono -O=all Timing.exe

using System;
using System.Collections.Generic;
using System.Linq;
using System.Runtime.InteropServices;
using ZQ7Standard;

internal static class Timing {
  private const int Calls = 100000;
  private const int Repetitions = 21;

  private static void Main() {
    var standard = new StandardObject();
    var baht = new BahtStringObject();
    var grid = new GridValueObject();
    grid.SetCols(3);
    DateTime day = new DateTime(2024, 1, 31);
    var rows = new Dictionary<string, Action> {
      ["BahtString(1234.56)"] = () => baht.BahtString(1234.56),
      ["AddMonth"] = () => standard.AddMonth(day),
      ["Floor"] = () => standard.Floor(1234.56),
      ["StrVal"] = () => standard.StrVal("1,234.56"),
      ["FormatTDate2, layout 8"] = () => standard.FormatTDate2(day, CTDateType.ZQ7DMMMBBBB),
      ["Rows, a property"] = () => { int unused = grid.Rows; },
      ["Setvalue, no handler"] = () => grid.Setvalue(0, 0, 1),
    };
    var other = new GridValueObject();
    other.SetCols(3);
    other.CellDataChange += (row, column) => {};
    rows["Setvalue, a handler"] = () => other.Setvalue(0, 0, 1);
    rows["an empty delegate"] = () => {};
    var times = rows.ToDictionary(row => row.Key, row => new List<double>());
    // Rows take turns, so that a busy spell of the machine does not hit one alone.
    for (int i = 0; i < Repetitions; ++i) {
      foreach (var row in rows) times[row.Key].Add(Nanoseconds(row.Value));
    }
    foreach (var row in times) {
      List<double> sorted = row.Value.OrderBy(time => time).ToList();
      Console.WriteLine($"{row.Key,-24} {sorted[Repetitions / 2],7:F1}  least {sorted[0],7:F1}");
    }
  }

  private static double Nanoseconds(Action call) {
    long start = ThreadTime();
    for (int i = 0; i < Calls; ++i) call();
    return (ThreadTime() - start) / (double)Calls;
  }

  private static long ThreadTime() {
    clock_gettime(ThreadClock, out Time time);
    return time.Seconds * 1000000000 + time.Nanoseconds;
  }

  private const int ThreadClock = 3;

  private struct Time {
    internal long Seconds, Nanoseconds;
  }

  [DllImport("libc")]
  private static extern int clock_gettime(int clock, out Time time);
}
