' The five tasks of docs/hosts.md from VBScript: cscript //nologo five_tasks.vbs
Dim baht, standard, settings, grid, day, file

Set baht = CreateObject("ZQ7Standard.BahtStringObject")
WScript.Echo baht.BahtString(121.50)

' The user's own settings say how dates are typed: here day first, in the Buddhist Era.
Set standard = CreateObject("ZQ7Standard.StandardObject")
day = standard.CTDATE("31/1/2567")
WScript.Echo standard.FormatQuery(standard.AddMonth(day, 1))

file = CreateObject("Scripting.FileSystemObject").GetAbsolutePathName("settings.ini")
Set settings = CreateObject("ZQ7Standard.ASCIIObject")
settings.Setvalue file, "Port", "9600"
WScript.Echo settings.GetValue(file, "Port")

Sub grid_CellDataChange(row, column)
  WScript.Echo "row " & row & ", column " & column
End Sub
Set grid = WScript.CreateObject("ZQ7Standard.GridValueObject", "grid_")
grid.SetCols 3
grid.Setvalue 7, 2, 12.5

On Error Resume Next
day = standard.CTDATE("31/2/2567")
WScript.Echo "error " & (Err.Number And 65535)
