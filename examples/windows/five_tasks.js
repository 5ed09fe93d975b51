// The five tasks of docs/hosts.md from JScript: cscript //nologo five_tasks.js
var baht = new ActiveXObject("ZQ7Standard.BahtStringObject");
WScript.Echo(baht.BahtString(121.50));

// The user's own settings say how dates are typed: here day first, in the Buddhist Era.
var standard = new ActiveXObject("ZQ7Standard.StandardObject");
WScript.Echo(standard.FormatQuery(standard.AddMonth(standard.CTDATE("31/1/2567"), 1)));

var file = new ActiveXObject("Scripting.FileSystemObject").GetAbsolutePathName("settings.ini");
var settings = new ActiveXObject("ZQ7Standard.ASCIIObject");
settings.Setvalue(file, "Port", "9600");
WScript.Echo(settings.GetValue(file, "Port"));

function grid_CellDataChange(row, column) {
  WScript.Echo("row " + row + ", column " + column);
}
var grid = WScript.CreateObject("ZQ7Standard.GridValueObject", "grid_");
grid.SetCols(3);
grid.Setvalue(7, 2, 12.5);

try {
  standard.CTDATE("31/2/2567");
} catch (error) {
  WScript.Echo("error " + (error.number & 0xFFFF));
}
