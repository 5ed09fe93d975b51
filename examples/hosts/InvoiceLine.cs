// Prints a line of an invoice: on the terminal, and on the current printer if its name is given.
//
//     InvoiceLine.exe 15/1/2567 1234.56 [PRINTER]
using System;
using System.Globalization;
using ZQ7Standard;

internal static class InvoiceLine {
  private const short A4 = 9;
  private const int Start = 0, End = 2;

  private static void Main(string[] arguments) {
    // Dates are typed day first, in the Buddhist Era.
    var services = new Services { Convention = () => new DateConvention(true, true) };
    using (var standard = new StandardObject(services))
    using (var baht = new BahtStringObject()) {
      DateTime date = standard.CTDATE(arguments[0]);
      decimal amount = decimal.Parse(arguments[1], CultureInfo.InvariantCulture);
      string day = standard.FormatThai(date, "d mmm bbbb");
      string figure = amount.ToString("N2", CultureInfo.InvariantCulture);
      string words = baht.BahtString((double)amount);
      Console.WriteLine($"{day}  {figure}  {words}");
      if (arguments.Length > 2) Print(arguments[2], day, figure, words);
    }
  }

  private static void Print(string name, string day, string figure, string words) {
    using (var printer = new PrintObject()) {
      printer.SelectPrinter(name, 1, A4, 7);
      printer.CheckPaperSize(A4);
      printer.PrintStart();
      printer.PrintGraphicText(day, 20, 40, 1, Start, 0, "Laksaman", 14);
      printer.PrintGraphicText(figure, 190, 0, 0, End);  // on the same line
      printer.PrintGraphicText(words, 20, 50);
      printer.PrintOut();
    }
  }
}
