Sub grid_CellDataChange(row, column)
  host.Echo "row " & row & ", column " & column & ", value " & grid.GetValue(row, column)
  If row = 9 Then Err.Raise 5, "events.vbs", "not row 9"
End Sub
grid.SetCols 3
grid.Setvalue 7, 2, 12.5
grid(8, 1) = 2
On Error Resume Next
grid.Setvalue 9, 0, 1
host.Echo "raised " & (Err.Number And 65535)
Err.Clear
host.Echo "stored " & grid.GetValue(9, 0)
