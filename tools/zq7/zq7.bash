# Completion of zq7 for bash, ignoring case.

_zq7_options="
  --version
  --help
  --now
  --convention
  --example
"
_zq7_fill_options="
  --with
  --output
  --errors
  --explain
  --dates
  --encoding
  --delimiter
  --guard
  --stop
  --jobs
  --quiet
"
_zq7_subcommands="
  list
  help
  call
  batch
  fill
"
_zq7_classes="
  ASCIIObject
  BahtStringObject
  BitByteObject
  CImageInfo
  DiskObject
  GridValueObject
  PeripheralObject
  PrintObject
  RegistryObject
  StandardObject
  PrintPicture
  SerialPort
"
_zq7_operations="
  ASCIIObject.GetValue
  ASCIIObject.Setvalue
  ASCIIObject.DeleteValue
  ASCIIObject.AddLog
  ASCIIObject.GETAllTextFile
  ASCIIObject.GETLineTextFile
  ASCIIObject.SaveStringToTextFile
  ASCIIObject.SaveStringToTextFile2
  BahtStringObject.MoneyText
  BahtStringObject.BahtString
  BahtStringObject.MoneyTextT
  BahtStringObject.BahtStringT
  BahtStringObject.MoneyTextE
  BahtStringObject.BahtStringE
  BahtStringObject.MonthText
  BahtStringObject.About
  BitByteObject.Bin2Oct
  BitByteObject.Bin2hex
  BitByteObject.Bin2Dec
  BitByteObject.Oct2Bin
  BitByteObject.Hex2Bin
  BitByteObject.Oct2hex
  BitByteObject.Hex2Oct
  BitByteObject.Oct2Dec
  BitByteObject.Hex2Dec
  BitByteObject.Hex2Dec2
  BitByteObject.Dec2Oct
  BitByteObject.Dec2hex
  BitByteObject.Dec2Bin
  BitByteObject.Base26To10
  BitByteObject.Base10To26
  BitByteObject.BitRead
  BitByteObject.BitWrite
  BitByteObject.BitSwitch
  CImageInfo.ReadImageInfo
  DiskObject.FileName
  DiskObject.Pathname
  DiskObject.trimPath
  DiskObject.ScaleFullPath
  DiskObject.CreateFullPath
  DiskObject.CopyFileCheck
  DiskObject.XCopyFile
  GridValueObject.SetFirst
  GridValueObject.SetRows
  GridValueObject.SetCols
  GridValueObject.Setvalue
  GridValueObject.GetValue
  GridValueObject.RemaveItem
  GridValueObject.ResetRow
  GridValueObject.Clear
  GridValueObject.SumCol
  GridValueObject.SumRow
  PeripheralObject.SendCommMsg
  PeripheralObject.OpenDraw
  PrintObject.SelectPrinter
  PrintObject.SelectPrinter2
  PrintObject.CheckPaperSize
  PrintObject.CheckPaperBin
  PrintObject.GETPaperSizeText
  PrintObject.GETPaperBinText
  PrintObject.GETPaperOrientationText
  PrintObject.PrintStart
  PrintObject.PrintSet
  PrintObject.PrintGraphicText
  PrintObject.PrintGraphicObject
  PrintObject.PrintOut
  PrintObject.PrintCancel
  RegistryObject.GetKeyValueLong
  RegistryObject.GetKeyValueString
  RegistryObject.UpdateKeyValueLong
  RegistryObject.UpdateKeyValueString
  RegistryObject.Encrypt
  RegistryObject.Decrypt
  StandardObject.GetEraDif
  StandardObject.CTYEAR
  StandardObject.Year2000
  StandardObject.GetDateFormat
  StandardObject.GetDateFormatString
  StandardObject.GETBlankDate
  StandardObject.GETMAXDate
  StandardObject.isBlankDate
  StandardObject.TrimDate
  StandardObject.DAYTIME2DAY
  StandardObject.DAY2DAYTIME
  StandardObject.FormatHour
  StandardObject.isDayTime
  StandardObject.CTDATE
  StandardObject.IsTDate
  StandardObject.CDATE2000
  StandardObject.GETValidDate
  StandardObject.IsTDateTime
  StandardObject.isMounthYear
  StandardObject.GETDateFromTextYYYYMMDD
  StandardObject.CTPeriod
  StandardObject.IsTPeriod
  StandardObject.CTTime
  StandardObject.isTTime
  StandardObject.Str2AddDay
  StandardObject.Str2TIME
  StandardObject.CTHour
  StandardObject.isHour
  StandardObject.GETMonthTextArray
  StandardObject.GETDayTextArray
  StandardObject.MonthText
  StandardObject.DayText
  StandardObject.MonthYearTextFull
  StandardObject.FormatTDate
  StandardObject.FormatTDate2
  StandardObject.FormatTDateTime
  StandardObject.Format2000
  StandardObject.FormatThai
  StandardObject.FormatThaiRevere
  StandardObject.FormatEnglish
  StandardObject.FormatQuery
  StandardObject.FormatQueryTime
  StandardObject.FormatTime
  StandardObject.FormatTime2
  StandardObject.FormatPeriod
  StandardObject.FormatTPeriod
  StandardObject.AddMonth
  StandardObject.AddYear
  StandardObject.GETFirstDayOfMonthYear
  StandardObject.GETLastDayOfMonthYear
  StandardObject.GETFirstMondayOfMonthYear
  StandardObject.GETFirstSaturdayOfMonthYear
  StandardObject.GETWeekOfMonth
  StandardObject.GETPeriodOfMonth
  StandardObject.ISWeekHoliday
  StandardObject.TimeLeftDateTime
  StandardObject.FormatTimeleft
  StandardObject.TimeLeftText
  StandardObject.GetConditionDueDate
  StandardObject.FormatCondition2
  StandardObject.FormatCondition
  StandardObject.FixNumber2
  StandardObject.FixNumber
  StandardObject.Round
  StandardObject.Floor
  StandardObject.Ceiling
  StandardObject.FixNumberWithCutMode
  StandardObject.FixMoneyDecimal
  StandardObject.StrVal
  StandardObject.StrVal2
  StandardObject.StrInt
  StandardObject.StrLng
  StandardObject.StrSng
  StandardObject.Null2Zero
  StandardObject.Numb
  StandardObject.Trim2Number
  StandardObject.d2h
  StandardObject.d2m
  StandardObject.h2d
  StandardObject.m2d
  StandardObject.d2Str
  StandardObject.FormatCostCode
  StandardObject.FormatCostCode2
  StandardObject.DeFormatCostCode
  StandardObject.DeFormatCostCode2
  StandardObject.AddList
  StandardObject.ArrayString
  StandardObject.ArrayString2
  StandardObject.ReverseList
  StandardObject.TrimN
  StandardObject.ReverseString
  StandardObject.TrimSpaceToOne
  StandardObject.IncreaseString
  StandardObject.FormatTextSort
  StandardObject.Instr2
  StandardObject.Random
  StandardObject.FormatPrimaryKey
  StandardObject.FormatSerialNo
  StandardObject.FormatBarCode
  StandardObject.FormatIP
  StandardObject.GetEAN13ChekDigit
  StandardObject.GetITF14ChekDigit
  StandardObject.EncryptBS
  StandardObject.DecryptBS
  StandardObject.Encrypt
  StandardObject.Decrypt
  StandardObject.CalculateMD5
  StandardObject.ExecuteProgram
  StandardObject.OpenBrowser
  StandardObject.OpenMail
  StandardObject.OpenCalendar
  StandardObject.SavePictureAsJPEG
  StandardObject.GetComputerName
  StandardObject.GetDiskSerialNumber
  StandardObject.GetVolumeSerialNumber
  StandardObject.QueryManagement
  StandardObject.GetSpecialFolder
  StandardObject.GetFileVersion
  StandardObject.getRemoteTOD
  StandardObject.SendMail
"
_zq7_others="
  ASCIIObject.DisableMsgLevel
  CImageInfo.Width
  CImageInfo.Height
  CImageInfo.Depth
  CImageInfo.ImageType
  GridValueObject.Rows
  GridValueObject.Cols
  GridValueObject.FixedRows
  GridValueObject.FixedCols
  GridValueObject.DataChange
  GridValueObject.CellDataChange
  PrintPicture.Width
  PrintPicture.Height
  SerialPort.CommPort
  SerialPort.Settings
  SerialPort.InputLen
  SerialPort.PortOpen
  SerialPort.Output
"

# Offers the words in $1 that begin with $2.
_zq7_offer() {
  local word
  for word in $1; do
    [[ ${word,,} == "${2,,}"* ]] && COMPREPLY+=("$word")
  done
}

_zq7_files() {
  compopt -o filenames 2> /dev/null
  mapfile -t COMPREPLY < <(compgen -f -- "$1")
}

# The members of the enumerations of the parameters of operation $1.
_zq7_members() {
  case ${1,,} in
    registryobject.getkeyvaluelong) echo HKEY_CLASSES_ROOT HKEY_CURRENT_USER HKEY_LOCAL_MACHINE HKEY_PERFORMANCE_DATA HKEY_USERS ;;
    registryobject.getkeyvaluestring) echo HKEY_CLASSES_ROOT HKEY_CURRENT_USER HKEY_LOCAL_MACHINE HKEY_PERFORMANCE_DATA HKEY_USERS ;;
    registryobject.updatekeyvaluelong) echo HKEY_CLASSES_ROOT HKEY_CURRENT_USER HKEY_LOCAL_MACHINE HKEY_PERFORMANCE_DATA HKEY_USERS ;;
    registryobject.updatekeyvaluestring) echo HKEY_CLASSES_ROOT HKEY_CURRENT_USER HKEY_LOCAL_MACHINE HKEY_PERFORMANCE_DATA HKEY_USERS ;;
    standardobject.formattdate2) echo ZQ7BBBBMD ZQ7DMBBBB ZQ7DMMBBBB ZQ7DMMMBBBB ZQ7DMMMYYYY ZQ7DMMYYYY ZQ7DMYYYY ZQ7D_D_M_M_B_B_B_B ZQ7D_D_M_M_Y_Y_Y_Y ZQ7Detect ZQ7MDBBBB ZQ7MDYYYY ZQ7MMMD_YYYY ZQ7MMMYYYY ZQ7YYYYMD ZQ7YYYY_MM_DD ;;
    standardobject.getconditionduedate) echo ZQ7AfterBLDate ZQ7AfterDeliveryDate ZQ7AfterEndOfBLMonth ZQ7AfterEndOfDeliveryMonth ZQ7AfterEndOfInvoiceMonth ZQ7AfterEndOfReceiveOSDOCMonth ZQ7AfterEndOfSPTMonth ZQ7AfterInvoiceDate ZQ7AfterReceiveOSDOC ;;
    standardobject.formatcondition2) echo ZQ7AfterBLDate ZQ7AfterDeliveryDate ZQ7AfterEndOfBLMonth ZQ7AfterEndOfDeliveryMonth ZQ7AfterEndOfInvoiceMonth ZQ7AfterEndOfReceiveOSDOCMonth ZQ7AfterEndOfSPTMonth ZQ7AfterInvoiceDate ZQ7AfterReceiveOSDOC ZQ7ConditionOutputTypeFull ZQ7ConditionOutputTypeShort ;;
    standardobject.fixnumberwithcutmode) echo ZQ7FixUnitAllDown ZQ7FixUnitAllUp ZQ7FixUnitFiveUp ZQ7FixUnitNone ;;
    standardobject.instr2) echo ZQ7CompareBinary ZQ7CompareText ;;
    standardobject.getspecialfolder) echo CSIDL_APPDATA CSIDL_BITBUCKET CSIDL_COMMON_DESKTOPDIRECTORY CSIDL_COMMON_PROGRAMS CSIDL_COMMON_STARTMENU CSIDL_COMMON_STARTUP CSIDL_CONTROLS CSIDL_DESKTOP CSIDL_DESKTOPDIRECTORY CSIDL_DRIVES CSIDL_FAVORITES CSIDL_FONTS CSIDL_INTERNET CSIDL_LOCAL_APPDATA CSIDL_MYDOCUMENTS CSIDL_MYMUSIC CSIDL_MYPICTURES CSIDL_MYVIDEO CSIDL_NETHOOD CSIDL_NETWORK CSIDL_PERSONAL CSIDL_PRINTERS CSIDL_PROGRAMS CSIDL_RECENT CSIDL_SENDTO CSIDL_STARTMENU CSIDL_STARTUP CSIDL_TEMPLATES ;;
    standardobject.sendmail) echo ZQ7ConnectionSecurityNone ZQ7ConnectionSecuritySSL_TLS ZQ7ConnectionSecuritySTARTTLS ;;
  esac
}

_zq7() {
  local current=${COMP_WORDS[COMP_CWORD]} subcommand= target= i
  COMPREPLY=()
  case ${COMP_WORDS[COMP_CWORD - 1]} in
    --now) return ;;
    --convention)
      _zq7_offer "mdy dmy mdy-buddhist dmy-buddhist" "$current"
      return
      ;;
    --dates) _zq7_offer "iso typed" "$current"; return ;;
    --encoding) _zq7_offer "utf-8 windows-874" "$current"; return ;;
    --with | --delimiter | --jobs) return ;;
    -o | --output | --errors) _zq7_files "$current"; return ;;
  esac
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --now | --convention | --dates | --encoding | --with | --delimiter | --jobs) ((i++)) ;;
      -o | --output | --errors) ((i++)) ;;
      -*) ;;
      *)
        if [[ -z $subcommand ]]; then
          subcommand=${COMP_WORDS[i]}
        elif [[ -z $target ]]; then
          target=${COMP_WORDS[i]}
        fi
        ;;
    esac
  done
  case $subcommand:$target:$current in
    call:*:-*) _zq7_offer "$_zq7_options --json" "$current" ;;
    fill:*:-*) _zq7_offer "$_zq7_options $_zq7_fill_options" "$current" ;;
    *:*:-*) _zq7_offer "$_zq7_options" "$current" ;;
    ::*) _zq7_offer "$_zq7_subcommands" "$current" ;;
    list::*) _zq7_offer "$_zq7_classes" "$current" ;;
    help::*) _zq7_offer "$_zq7_classes $_zq7_operations $_zq7_others" "$current" ;;
    call::*) _zq7_offer "$_zq7_operations" "$current" ;;
    call:*) _zq7_offer "$(_zq7_members "$target")" "${current##*=}" ;;
    batch::* | fill::*) _zq7_files "$current" ;;
  esac
}

complete -F _zq7 zq7
