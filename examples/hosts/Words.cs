// An amount in Thai words, from C#: Words.exe 121.50
using System;
using System.Globalization;
using ZQ7Standard;

internal static class Words {
  private static void Main(string[] arguments) {
    using (var baht = new BahtStringObject()) {
      Console.WriteLine(baht.BahtString(double.Parse(arguments[0], CultureInfo.InvariantCulture)));
    }
  }
}
