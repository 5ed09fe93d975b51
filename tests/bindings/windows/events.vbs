Sub grid_CellDataChange(row, column)
  host.Echo "row " & row & ", column " & column & ", value " & grid.GetValue(row, column)
End Sub
grid.SetCols 3
grid.Setvalue 7, 2, 12.5
grid.Setvalue 8, 1, 2
host.Echo "sum " & grid.SumCol(2)
