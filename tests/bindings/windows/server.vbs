' What a script does with the server; the last line tells how many checks failed. Only what Wine 8
' has of the language.
Dim failed, standard, baht, grid, text, number, value, list, item, port, folder
failed = 0
folder = WScript.Arguments(0)

Sub Check(what, wanted, got)
  If TypeName(wanted) = TypeName(got) Then
    If wanted = got Then Exit Sub
  End If
  failed = failed + 1
  WScript.Echo "FAILED " & what & ": " & TypeName(got) & " " & got
End Sub
Sub CheckError(what, wanted)
  Dim got
  got = Err.Number And 65535
  text = Err.Description
  Err.Clear
  Check what, CLng(wanted), CLng(got)
End Sub

Class Port
  Public CommPort
  Public Settings
  Public InputLen
  Public Sent
  Public Opened
  Public Property Let Output(text)
    Sent = Sent & text
  End Property
  Public Property Let PortOpen(flag)
    Opened = Opened & CStr(flag)
  End Property
End Class
Class Busy
  Public CommPort
  Public Settings
  Public InputLen
  Public Output
  Public Property Let PortOpen(flag)
    Err.Raise 8005, "Busy", "the line is taken"
  End Property
End Class
Class Held
  Public Default Property Get Amount
    Amount = 121.5
  End Property
End Class

Set standard = CreateObject("ZQ7Standard.StandardObject")
Set baht = CreateObject("ZQ7Standard.BahtStringObject.1")
Set grid = CreateObject("ZQ7Standard.GridValueObject")
On Error Resume Next

' Dates
value = standard.GETDateFromTextYYYYMMDD("2567-01-31")
Check "a date", "Date", TypeName(value)
Check "a month later", "2024-02-29", standard.FormatQuery(standard.AddMonth(value, 1))
number = 1
Check "variables by reference", "2024-02-29", standard.FormatQuery(standard.AddMonth(value, number))
number = "1"
Check "of another type", "2024-02-29", standard.FormatQuery(standard.AddMonth(value, number))
Check "which are as they were", "1", number
Check "an optional argument", "31 January 2024", standard.FormatEnglish(value)
Check "one that is left out", "-425", standard.Numb("-42.5", , True)
list = standard.GETMonthTextArray(False, False)
Check "a list", CLng(12), UBound(list)
Check "its second item", "Jan", list(1)
text = ""
For Each item In standard.ArrayString("a", "b") : text = text & item : Next
Check "each item", "ab", text

' Money
Check "words", "One hundred twenty one baht and fifty satang", baht.MoneyTextE(121.5)
Check "words of a text", "One hundred twenty one baht and fifty satang", baht.MoneyTextE("121.50")
Check "words of a default property", "One hundred twenty one baht and fifty satang", baht.MoneyTextE(New Held)
Check "currency", "Currency", TypeName(standard.FixMoneyDecimal(CCur("12.25"), True))
Check "a long text", CLng(34), Len(baht.MoneyText(121.5))

' The grid
Check "the first sizes", True, grid.SetFirst(10, 5, 1, 1)
Check "a value", True, grid.Setvalue(7, 2, 3.5)
Check "rows", CLng(8), grid.Rows
Check "a sum", 3.5, grid.SumCol(2)
grid(3, 2) = 1.5
Check "a cell", 1.5, grid(3, 2)
grid.RemaveItem 7
Check "the sum without a row", 1.5, grid.SumCol(2)

' Files
Dim settings
Set settings = CreateObject("ZQ7Standard.ASCIIObject")
settings.SaveStringToTextFile folder & "\note.txt", "one" & vbCrLf & "two"
Check "a file", "one" & vbCrLf & "two", settings.GETAllTextFile(folder & "\note.txt")
settings.Setvalue folder & "\set.ini", "Port", 9600
Check "a setting", "9600", settings.GetValue(folder & "\set.ini", "PORT")
settings.DisableMsgLevel = 0
Check "a property", 0, settings.DisableMsgLevel

' The registry: the driver of the tests compares it with what the system's own tool shows.
Dim registry
Const HKCU = &H80000001
Set registry = CreateObject("ZQ7Standard.RegistryObject")
Check "written", False, registry.UpdateKeyValueString(HKCU, "Software\ZQ7Test", "Shop", "shop 1")
Check "a value of the registry", "shop 1", registry.GetKeyValueString(HKCU, "Software\ZQ7Test", "Shop")

' A script's object in place of a device
Set port = New Port
Dim peripheral
Set peripheral = CreateObject("ZQ7Standard.PeripheralObject")
Check "sent", 0, peripheral.SendCommMsg(port, "READY", 3)
Check "the port's number", 3, port.CommPort
Check "its settings", "9600,N,8,1", port.Settings
Check "what it wrote", "READY", port.Sent
Check "open and closed", "TrueFalse", port.Opened
Check "an error of the device", 8005, peripheral.SendCommMsg(New Busy, "READY", 3)
Check "without the properties", 438, peripheral.SendCommMsg(New Held, "READY", 3)
Check "no device", 91, peripheral.SendCommMsg(Nothing, "READY", 3)

' Errors
If Err.Number <> 0 Then WScript.Echo "FAILED before the errors: " & Err.Description : failed = failed + 1
Err.Clear
value = standard.CTDATE("31/2/2567") : CheckError "no date", 13
Check "its text", "StandardObject.CTDATE: type mismatch (error 13): iText: ""31/2/2567""", text
value = standard.StrInt("40,000") : CheckError "too large", 6
value = grid.GetValue(-1, 0) : CheckError "no cell", 9
value = standard.FormatCostCode(1, "ABC") : CheckError "no code word", 5
value = standard.FormatQuery() : CheckError "too few", 449
value = standard.FormatQuery(1, 2) : CheckError "too many", 450
value = standard.NoSuch(1) : CheckError "no such member", 438
value = standard.StrVal(Nothing) : CheckError "nothing", 13
Set value = CreateObject("ZQ7Standard.NoSuchObject") : CheckError "no such class", 429

If failed = 0 Then WScript.Echo "server.vbs: passed" Else WScript.Echo "server.vbs: " & failed & " failed"
