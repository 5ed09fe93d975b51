#ifndef ZQ7STANDARD_ENUMERATIONS_H_
#define ZQ7STANDARD_ENUMERATIONS_H_

#include <cstdint>
#include <limits>

#include <ZQ7Standard/HideMacros.h>

namespace ZQ7Standard {

/// Layouts of a date.
///
/// D is the day, M the month, YYYY a Gregorian year, BBBB a Buddhist Era year. The
/// values 1 to 4 are also the codes of `GetDateFormat`.
enum CTDateType : std::int32_t {
  ZQ7Detect = 0,            ///< the system's own layout, one of 1 to 4
  ZQ7MDYYYY = 1,            ///< 1/15/2024
  ZQ7DMYYYY = 2,            ///< 15/1/2024
  ZQ7MDBBBB = 3,            ///< 1/15/2567
  ZQ7DMBBBB = 4,            ///< 15/1/2567
  ZQ7YYYYMD = 5,            ///< 2024/1/15
  ZQ7BBBBMD = 6,            ///< 2567/1/15
  ZQ7DMMBBBB = 7,           ///< 15 ม.ค. 2567
  ZQ7DMMMBBBB = 8,          ///< 15 มกราคม 2567
  ZQ7DMMYYYY = 9,           ///< 15 Jan 2024
  ZQ7DMMMYYYY = 10,         ///< 15 January 2024
  ZQ7YYYY_MM_DD = 11,       ///< 2024-01-15
  ZQ7MMMD_YYYY = 12,        ///< January 15, 2024
  ZQ7MMMYYYY = 13,          ///< January 2024
  ZQ7D_D_M_M_Y_Y_Y_Y = 14,  ///< 1 5 0 1 2 0 2 4, for the boxes of a cheque
  ZQ7D_D_M_M_B_B_B_B = 15,  ///< 1 5 0 1 2 5 6 7
};

/// The event that the days of a payment term count from.
enum ZQ7ConditionType : std::int32_t {
  ZQ7AfterInvoiceDate = 0,
  ZQ7AfterDeliveryDate = 1,
  ZQ7AfterBLDate = 2,
  ZQ7AfterReceiveOSDOC = 3,
  ZQ7AfterEndOfInvoiceMonth = 4,
  ZQ7AfterEndOfDeliveryMonth = 5,
  ZQ7AfterEndOfBLMonth = 6,
  ZQ7AfterEndOfReceiveOSDOCMonth = 7,
  ZQ7AfterEndOfSPTMonth = 8,
};

/// How the event of a payment term is written.
enum ZQ7ConditionOutputType : std::int32_t {
  ZQ7ConditionOutputTypeShort = 0,  ///< "N/30 AID"
  ZQ7ConditionOutputTypeFull = 1,   ///< "N/30 AFTER INVOICE DATE"
};

/// How `FixNumberWithCutMode` brings a number to a whole unit.
enum ZQ7FixUnit : std::int32_t {
  ZQ7FixUnitNone = 0,     ///< not at all
  ZQ7FixUnitFiveUp = 1,   ///< up if the fraction is .5 or more, else down
  ZQ7FixUnitAllUp = 2,    ///< up
  ZQ7FixUnitAllDown = 3,  ///< toward zero
};

/// How `Instr2` compares, searching forward.
enum ZQ7CompareMethod : std::int32_t {
  ZQ7CompareBinary = 0,  ///< code unit by code unit
  ZQ7CompareText = 1,    ///< without regard to case, in every script and locale
};

/// How a connection to a mail server is protected.
enum ZQ7ConnectionSecurity : std::int32_t {
  ZQ7ConnectionSecurityNone = 0,      ///< not at all
  ZQ7ConnectionSecuritySTARTTLS = 1,  ///< by TLS, once the server agrees; often port 587
  ZQ7ConnectionSecuritySSL_TLS = 2,   ///< by TLS from the start; often port 465
};

/// The kind of an image file.
enum eImageType : std::int32_t {
  itUNKNOWN = 0,  ///< none of the others
  itGIF = 1,
  itJPEG = 2,
  itPNG = 3,
  itBMP = 4,
};

/// The root keys of every registry, with the platform's numbers.
enum KetRootType : std::int32_t {
  HKEY_CLASSES_ROOT = std::numeric_limits<std::int32_t>::min(),  ///< 0x80000000
  HKEY_CURRENT_USER = HKEY_CLASSES_ROOT + 1,                     ///< the user's own
  HKEY_LOCAL_MACHINE = HKEY_CLASSES_ROOT + 2,                    ///< the machine's
  HKEY_USERS = HKEY_CLASSES_ROOT + 3,
  HKEY_PERFORMANCE_DATA = HKEY_CLASSES_ROOT + 4,  ///< never holds a value
};

/// Folders of the user and of the machine, with the platform's numbers.
enum VirtualFolder : std::int32_t {
  CSIDL_DESKTOP = 0,
  CSIDL_INTERNET = 1,                  ///< none
  CSIDL_PROGRAMS = 2,                  ///< starters of the user's programs
  CSIDL_CONTROLS = 3,                  ///< none
  CSIDL_PRINTERS = 4,                  ///< none
  CSIDL_PERSONAL = 5,                  ///< documents
  CSIDL_FAVORITES = 6,                 ///< none
  CSIDL_STARTUP = 7,                   ///< programs that start when the user logs in
  CSIDL_RECENT = 8,                    ///< none
  CSIDL_SENDTO = 9,                    ///< none
  CSIDL_BITBUCKET = 10,                ///< none
  CSIDL_STARTMENU = 11,                ///< as `CSIDL_PROGRAMS`
  CSIDL_MYDOCUMENTS = 12,              ///< as `CSIDL_PERSONAL`
  CSIDL_MYMUSIC = 13,                  ///< music
  CSIDL_MYVIDEO = 14,                  ///< videos
  CSIDL_DESKTOPDIRECTORY = 16,         ///< as `CSIDL_DESKTOP`
  CSIDL_DRIVES = 17,                   ///< none
  CSIDL_NETWORK = 18,                  ///< none
  CSIDL_NETHOOD = 19,                  ///< none
  CSIDL_FONTS = 20,                    ///< the machine's fonts
  CSIDL_TEMPLATES = 21,                ///< templates of documents
  CSIDL_COMMON_STARTMENU = 22,         ///< as `CSIDL_COMMON_PROGRAMS`
  CSIDL_COMMON_PROGRAMS = 23,          ///< starters of everybody's programs
  CSIDL_COMMON_STARTUP = 24,           ///< programs that start when anybody logs in
  CSIDL_COMMON_DESKTOPDIRECTORY = 25,  ///< none
  CSIDL_APPDATA = 26,                  ///< settings of programs
  CSIDL_LOCAL_APPDATA = 28,            ///< data of programs
  CSIDL_MYPICTURES = 39,               ///< pictures
};

}  // namespace ZQ7Standard

#include <ZQ7Standard/RestoreMacros.h>

#endif  // ZQ7STANDARD_ENUMERATIONS_H_
