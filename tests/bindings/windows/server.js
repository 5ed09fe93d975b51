// What a script does with the server; the last line tells how many checks failed. Only what Wine 8
// has of the language.
var failed = 0;
var folder = WScript.Arguments(0);

function check(what, wanted, got) {
  if (wanted === got) return;
  ++failed;
  WScript.Echo("FAILED " + what + ": " + typeof got + " " + got);
}
function checkError(what, wanted, act) {
  var number = 0;
  try {
    act();
  } catch (error) {
    number = error.number & 0xFFFF;
  }
  check(what, wanted, number);
}

var standard = new ActiveXObject("ZQ7Standard.StandardObject");
var baht = new ActiveXObject("ZQ7Standard.BahtStringObject");
var grid = new ActiveXObject("ZQ7Standard.GridValueObject");

check("a month later", "2024-02-29", standard.FormatQuery(standard.AddMonth(45322, 1)));
check("an optional argument", "31 January 2024", standard.FormatEnglish(45322));
check("a list", "Jan", new VBArray(standard.GETMonthTextArray(false, false)).toArray()[1]);
check("Thai words", "\u0E22\u0E35\u0E48\u0E2A\u0E34\u0E1A\u0E1A\u0E32\u0E17\u0E16\u0E49\u0E27\u0E19",
      baht.BahtString(20));
check("the first sizes", true, grid.SetFirst(10, 5, 1, 1));
check("a value", true, grid.Setvalue(7, 2, 3.5));
check("rows", 8, grid.Rows);
check("a cell", 3.5, grid(7, 2));

var settings = new ActiveXObject("ZQ7Standard.ASCIIObject");
settings.SaveStringToTextFile(folder + "\\js.txt", "one");
check("a file", "one", settings.GETAllTextFile(folder + "\\js.txt"));
settings.DisableMsgLevel = 0;
check("a property", 0, settings.DisableMsgLevel);

var port = {CommPort: 0, Settings: "", InputLen: 9, PortOpen: false, Output: ""};
var peripheral = new ActiveXObject("ZQ7Standard.PeripheralObject");
check("sent", 0, peripheral.SendCommMsg(port, "READY", 3));
check("the port's number", 3, port.CommPort);
check("what it wrote", "READY", port.Output);
check("closed", false, port.PortOpen);
check("without the properties", 438, peripheral.SendCommMsg({}, "READY", 3));
check("no device", 91, peripheral.SendCommMsg(null, "READY", 3));

checkError("no date", 13, function () { standard.CTDATE("31/2/2567"); });
checkError("too large", 6, function () { standard.StrInt("40,000"); });
checkError("no such member", 438, function () { standard.NoSuch(1); });
checkError("too many", 450, function () { standard.FormatQuery(1, 2); });

WScript.Echo(failed == 0 ? "server.js: passed" : "server.js: " + failed + " failed");
