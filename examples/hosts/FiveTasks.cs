// The five tasks of docs/hosts.md from C#.
using System;
using System.Collections.Generic;
using ZQ7Standard;

internal static class FiveTasks {
  private static void Main() {
    var baht = new BahtStringObject();
    Console.WriteLine(baht.BahtString(121.50));

    var services = new Services {
      Convention = () => new DateConvention(dayFirst: true, buddhist: true),
      Drives = new Dictionary<char, string> { ['C'] = "." },
    };
    var standard = new StandardObject(services);
    DateTime date = standard.CTDATE("31/1/2567");
    Console.WriteLine(standard.AddMonth(date, 1).ToString("yyyy-MM-dd"));

    var settings = new ASCIIObject(services);
    settings.Setvalue(@"C:\settings.ini", "Port", "9600");
    Console.WriteLine(settings.GetValue(@"C:\settings.ini", "Port"));

    var grid = new GridValueObject();
    grid.CellDataChange += (row, column) => Console.WriteLine($"row {row}, column {column}");
    grid.SetCols(3);
    grid.Setvalue(7, 2, 12.5);

    try {
      standard.CTDATE("31/2/2567");
    } catch (RunTimeException error) {
      Console.WriteLine("error " + error.Number);
    }
  }
}
