function grid_CellDataChange(row, column) {
  WScript.Echo("row " + row + ", column " + column + ", value " + grid.GetValue(row, column));
}
var grid = WScript.CreateObject("ZQ7Standard.GridValueObject", "grid_");
grid.SetCols(3);
grid.Setvalue(7, 2, 12.5);
WScript.Echo("sum " + grid.SumCol(2));
