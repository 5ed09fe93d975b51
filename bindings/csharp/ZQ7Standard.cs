// Made by scripts/pages from the catalogue and ZQ7Standard.cs.in.
//
// The classes of ZQ7Standard 0.1.0 for .NET, called through the library's C interface.
// Compile it into a program, with -unsafe; docs/csharp.md is the guide.

using System;
using System.Collections.Generic;
using System.Linq;
using System.Runtime.ExceptionServices;
using System.Runtime.InteropServices;
using System.Text;

// What a name says needs no comment.
#pragma warning disable 1591

namespace ZQ7Standard {

/// <summary>A run-time error of the library; docs/errors.md lists the numbers.</summary>
/// <remarks>
/// If a function of the host's own failed in the course of the call, what it threw is the
/// <see cref="Exception.InnerException"/>, or is thrown itself if the call failed for no other
/// reason.
/// </remarks>
public sealed class RunTimeException : Exception {
  /// <summary>For a host's own functions to throw: the library sees the number.</summary>
  public RunTimeException(int number, string text) : base(text) {
    Number = number;
    Text = text;
    ClassName = Operation = Parameter = "";
  }

  internal unsafe RunTimeException(NativeError* error, Exception inner)
      : base(Native.Utf8(error->Message), inner) {
    Number = error->Number;
    Text = Native.Utf8(error->Text);
    ClassName = Native.Utf8(error->ClassName);
    Operation = Native.Utf8(error->Operation);
    Parameter = Native.Utf8(error->Parameter);
    if (error->Input != null) Input = new string(error->Input, 0, (int)error->InputLength);
  }

  /// <summary>The number, such as 13.</summary>
  public int Number { get; }

  /// <summary>What happened, such as "type mismatch"; the message has the rest too.</summary>
  public string Text { get; }

  /// <summary>The class of the member that failed; empty if not known.</summary>
  public string ClassName { get; }

  /// <summary>The operation or property that failed; empty if not known.</summary>
  public string Operation { get; }

  /// <summary>The parameter whose argument is wrong; empty if not known.</summary>
  public string Parameter { get; }

  /// <summary>That argument, whole; null if not known.</summary>
  public string Input { get; }
}

/// <summary>How dates are typed and shown.</summary>
public struct DateConvention {
  /// <summary>Sets both.</summary>
  public DateConvention(bool dayFirst, bool buddhist) {
    DayFirst = dayFirst;
    Buddhist = buddhist;
  }

  /// <summary>Whether the day comes before the month.</summary>
  public bool DayFirst { get; }

  /// <summary>Whether years are Buddhist.</summary>
  public bool Buddhist { get; }
}

/// <summary>Tells the user of a problem; the operation goes on when it returns.</summary>
public delegate void MessageBox(string title, string text, bool isError);

/// <summary>What objects need from the machine. What is null is the machine's own.</summary>
/// <remarks>
/// Any number of objects may share services, which are fixed when the first is made. Objects of
/// several threads may share them if the functions may be called on all of those.
/// </remarks>
public sealed unsafe class Services : IDisposable {
  private ServicesHandle _handle;
  private Func<DateTime> _clock;
  private Func<DateConvention> _convention;
  private MessageBox _messageBox;
  private IDictionary<char, string> _drives;
  private IDictionary<int, string> _serialDevices;
  private bool _memoryRegistry;
  private bool _sodiumCipher;

  /// <summary>Today's date and time, to the second.</summary>
  public Func<DateTime> Clock {
    get => _clock;
    set => Set(ref _clock, value);
  }

  /// <summary>How dates are typed and shown.</summary>
  public Func<DateConvention> Convention {
    get => _convention;
    set => Set(ref _convention, value);
  }

  /// <summary>Shows messages. What it throws is ignored: the operation has done its work.
  /// </summary>
  public MessageBox MessageBox {
    get => _messageBox;
    set => Set(ref _messageBox, value);
  }

  /// <summary>The folders that the drives of path texts stand for, by letter.</summary>
  public IDictionary<char, string> Drives {
    get => _drives;
    set => Set(ref _drives, value);
  }

  /// <summary>The devices of port numbers, such as "/dev/serial/by-id/usb-...".</summary>
  public IDictionary<int, string> SerialDevices {
    get => _serialDevices;
    set => Set(ref _serialDevices, value);
  }

  /// <summary>Whether registry values are kept in memory alone.</summary>
  public bool MemoryRegistry {
    get => _memoryRegistry;
    set => Set(ref _memoryRegistry, value);
  }

  /// <summary>Whether texts are enciphered with libsodium; error 429 if the library is built
  /// without it.</summary>
  public bool SodiumCipher {
    get => _sodiumCipher;
    set => Set(ref _sodiumCipher, value);
  }

  /// <summary>Ends the program's own use; objects keep the services.</summary>
  public void Dispose() => _handle?.Dispose();

  internal IntPtr Handle {
    get {
      if (_handle == null) _handle = Create();
      if (_handle.IsClosed) throw new ObjectDisposedException(nameof(Services));
      return _handle.DangerousGetHandle();
    }
  }

  private void Set<T>(ref T field, T value) {
    if (_handle != null) throw new InvalidOperationException("The services are in use.");
    field = value;
  }

  private ServicesHandle Create() {
    // The objects of these services keep this object alive, and no others call its functions.
    using (var memory = new NativeMemory())
    using (var contexts = new Contexts(this, GCHandleType.Weak)) {
      OneFunction clock = contexts.Table(Callbacks.Now);
      OneFunction convention = contexts.Table(Callbacks.Current);
      OneFunction messageBox = contexts.Table(Callbacks.Show);
      NativeDrive[] drives = (_drives ?? new Dictionary<char, string>())
          .Select(drive => new NativeDrive {
            Letter = checked((byte)drive.Key), Folder = memory.Utf8(drive.Value) }).ToArray();
      NativeSerialDevice[] devices = (_serialDevices ?? new Dictionary<int, string>())
          .Select(device => new NativeSerialDevice {
            Port = device.Key, Device = memory.Utf8(device.Value) }).ToArray();
      fixed (NativeDrive* firstDrive = drives)
      fixed (NativeSerialDevice* firstDevice = devices) {
        var table = new ServiceTable {
          Size = (UIntPtr)sizeof(ServiceTable),
          Flags = (_memoryRegistry ? 1u : 0) | (_sodiumCipher ? 2u : 0),
          Clock = _clock != null ? &clock : null,
          Convention = _convention != null ? &convention : null,
          MessageBox = _messageBox != null ? &messageBox : null,
          Drives = firstDrive,
          DriveCount = (UIntPtr)drives.Length,
          SerialDevices = firstDevice,
          SerialDeviceCount = (UIntPtr)devices.Length };
        Failures.Check(Native.zq7_services_create(&table, out IntPtr services));
        if (_clock != null) contexts.Keep(clock);
        if (_convention != null) contexts.Keep(convention);
        if (_messageBox != null) contexts.Keep(messageBox);
        return new ServicesHandle(services);
      }
    }
  }
}

/// <summary>A serial line of the host's own, set up in this order.</summary>
public interface ISerialPort {
  /// <summary>The number of the port, from 1.</summary>
  int CommPort { set; }
  /// <summary>Baud, parity, data bits and stop bits, such as "9600,N,8,1".</summary>
  string Settings { set; }
  /// <summary>How many characters one read returns; 0 means all that have arrived.</summary>
  int InputLen { set; }
  /// <summary>Whether the port is open; opens or closes it.</summary>
  bool PortOpen { get; set; }
  /// <summary>The text to write.</summary>
  string Output { set; }
}

/// <summary>A picture of the host's own.</summary>
public interface IPicture {
  /// <summary>The width in millimetres.</summary>
  float Width { get; }
  /// <summary>The height in millimetres.</summary>
  float Height { get; }
  /// <summary>The bytes of a PNG or JPEG file; they are asked for once.</summary>
  byte[] Bytes { get; }
}

/// <summary>An object of the library.</summary>
/// <remarks>
/// An object, with its events, belongs to one thread at a time; distinct objects are
/// independent. One that is not disposed of is released after it is collected.
/// </remarks>
public abstract class ZQ7Object : IDisposable {
  internal readonly ObjectHandle Handle;

  internal ZQ7Object(ObjectHandle handle) {
    Handle = handle;
  }

  /// <summary>Ends the events and the use of the object; later calls raise
  /// <see cref="ObjectDisposedException"/>.</summary>
  public void Dispose() {
    Handle.Events.Dispose();
    Handle.Release();
  }
}

public sealed unsafe partial class SerialPort {
  private SerialPort(ObjectHandle handle) : base(handle) {}

  /// <summary>Makes a serial line of the host's own one to pass to operations, which keep it
  /// as long as they need it.</summary>
  public static SerialPort From(ISerialPort port) {
    if (port == null) throw new ArgumentNullException(nameof(port));
    using (var contexts = new Contexts(port, GCHandleType.Normal)) {
      SixFunctions table = contexts.SerialPort();
      Failures.Check(Native.zq7_wrap_serial_port(&table, out IntPtr handle));
      contexts.Keep(table.First);
      return new SerialPort(new ObjectHandle(handle, null));
    }
  }
}

public sealed unsafe partial class PrintPicture {
  private PrintPicture(ObjectHandle handle) : base(handle) {}

  /// <summary>Makes a picture of the host's own one to pass to operations, which keep it as
  /// long as they need it.</summary>
  public static PrintPicture From(IPicture picture) {
    if (picture == null) throw new ArgumentNullException(nameof(picture));
    using (var contexts = new Contexts(new PinnedPicture(picture), GCHandleType.Normal)) {
      ThreeFunctions table = contexts.Picture();
      Failures.Check(Native.zq7_wrap_picture(&table, out IntPtr handle));
      contexts.Keep(table.First);
      return new PrintPicture(new ObjectHandle(handle, null));
    }
  }

  /// <summary>Reads a PNG or JPEG file, on the drives of <paramref name="services"/>.</summary>
  /// <exception cref="RunTimeException">53, 57, 70 or 75 if it cannot be read, 5 for a file of
  /// another kind.</exception>
  public static PrintPicture FromFile(string path, Services services = null) {
    fixed (char* text = path) {
      var value = new Value();
      value.Set(text, path);
      Failures.Check(Native.zq7_picture_of_file(&value, services?.Handle ?? IntPtr.Zero,
                                                out IntPtr handle));
      return new PrintPicture(new ObjectHandle(handle, services));
    }
  }
}

/// <summary>Layouts of a date.</summary>
/// <remarks>
/// <para>D is the day, M the month, YYYY a Gregorian year, BBBB a Buddhist Era year. The values 1
/// to 4 are also the codes of <c>GetDateFormat</c>.</para>
/// </remarks>
public enum CTDateType {
  /// <summary>the system's own layout, one of 1 to 4</summary>
  ZQ7Detect = 0,
  /// <summary>1/15/2024</summary>
  ZQ7MDYYYY = 1,
  /// <summary>15/1/2024</summary>
  ZQ7DMYYYY = 2,
  /// <summary>1/15/2567</summary>
  ZQ7MDBBBB = 3,
  /// <summary>15/1/2567</summary>
  ZQ7DMBBBB = 4,
  /// <summary>2024/1/15</summary>
  ZQ7YYYYMD = 5,
  /// <summary>2567/1/15</summary>
  ZQ7BBBBMD = 6,
  /// <summary>15 ม.ค. 2567</summary>
  ZQ7DMMBBBB = 7,
  /// <summary>15 มกราคม 2567</summary>
  ZQ7DMMMBBBB = 8,
  /// <summary>15 Jan 2024</summary>
  ZQ7DMMYYYY = 9,
  /// <summary>15 January 2024</summary>
  ZQ7DMMMYYYY = 10,
  /// <summary>2024-01-15</summary>
  ZQ7YYYY_MM_DD = 11,
  /// <summary>January 15, 2024</summary>
  ZQ7MMMD_YYYY = 12,
  /// <summary>January 2024</summary>
  ZQ7MMMYYYY = 13,
  /// <summary>1 5 0 1 2 0 2 4, for the boxes of a cheque</summary>
  ZQ7D_D_M_M_Y_Y_Y_Y = 14,
  /// <summary>1 5 0 1 2 5 6 7</summary>
  ZQ7D_D_M_M_B_B_B_B = 15,
}

/// <summary>The event that the days of a payment term count from.</summary>
public enum ZQ7ConditionType {
  ZQ7AfterInvoiceDate = 0,
  ZQ7AfterDeliveryDate = 1,
  ZQ7AfterBLDate = 2,
  ZQ7AfterReceiveOSDOC = 3,
  ZQ7AfterEndOfInvoiceMonth = 4,
  ZQ7AfterEndOfDeliveryMonth = 5,
  ZQ7AfterEndOfBLMonth = 6,
  ZQ7AfterEndOfReceiveOSDOCMonth = 7,
  ZQ7AfterEndOfSPTMonth = 8,
}

/// <summary>How the event of a payment term is written.</summary>
public enum ZQ7ConditionOutputType {
  /// <summary>"N/30 AID"</summary>
  ZQ7ConditionOutputTypeShort = 0,
  /// <summary>"N/30 AFTER INVOICE DATE"</summary>
  ZQ7ConditionOutputTypeFull = 1,
}

/// <summary>How <c>FixNumberWithCutMode</c> brings a number to a whole unit.</summary>
public enum ZQ7FixUnit {
  /// <summary>not at all</summary>
  ZQ7FixUnitNone = 0,
  /// <summary>up if the fraction is .5 or more, else down</summary>
  ZQ7FixUnitFiveUp = 1,
  /// <summary>up</summary>
  ZQ7FixUnitAllUp = 2,
  /// <summary>toward zero</summary>
  ZQ7FixUnitAllDown = 3,
}

/// <summary>How <c>Instr2</c> compares, searching forward.</summary>
public enum ZQ7CompareMethod {
  /// <summary>code unit by code unit</summary>
  ZQ7CompareBinary = 0,
  /// <summary>without regard to case, in every script and locale</summary>
  ZQ7CompareText = 1,
}

/// <summary>How a connection to a mail server is protected.</summary>
public enum ZQ7ConnectionSecurity {
  /// <summary>not at all</summary>
  ZQ7ConnectionSecurityNone = 0,
  /// <summary>by TLS, once the server agrees; often port 587</summary>
  ZQ7ConnectionSecuritySTARTTLS = 1,
  /// <summary>by TLS from the start; often port 465</summary>
  ZQ7ConnectionSecuritySSL_TLS = 2,
}

/// <summary>The kind of an image file.</summary>
public enum eImageType {
  /// <summary>none of the others</summary>
  itUNKNOWN = 0,
  itGIF = 1,
  itJPEG = 2,
  itPNG = 3,
  itBMP = 4,
}

/// <summary>The root keys of every registry, with the platform's numbers.</summary>
public enum KetRootType {
  /// <summary>0x80000000</summary>
  HKEY_CLASSES_ROOT = -2147483648,
  /// <summary>the user's own</summary>
  HKEY_CURRENT_USER = -2147483647,
  /// <summary>the machine's</summary>
  HKEY_LOCAL_MACHINE = -2147483646,
  HKEY_USERS = -2147483645,
  /// <summary>never holds a value</summary>
  HKEY_PERFORMANCE_DATA = -2147483644,
}

/// <summary>Folders of the user and of the machine, with the platform's numbers.</summary>
public enum VirtualFolder {
  CSIDL_DESKTOP = 0,
  /// <summary>none</summary>
  CSIDL_INTERNET = 1,
  /// <summary>starters of the user's programs</summary>
  CSIDL_PROGRAMS = 2,
  /// <summary>none</summary>
  CSIDL_CONTROLS = 3,
  /// <summary>none</summary>
  CSIDL_PRINTERS = 4,
  /// <summary>documents</summary>
  CSIDL_PERSONAL = 5,
  /// <summary>none</summary>
  CSIDL_FAVORITES = 6,
  /// <summary>programs that start when the user logs in</summary>
  CSIDL_STARTUP = 7,
  /// <summary>none</summary>
  CSIDL_RECENT = 8,
  /// <summary>none</summary>
  CSIDL_SENDTO = 9,
  /// <summary>none</summary>
  CSIDL_BITBUCKET = 10,
  /// <summary>as <c>CSIDL_PROGRAMS</c></summary>
  CSIDL_STARTMENU = 11,
  /// <summary>as <c>CSIDL_PERSONAL</c></summary>
  CSIDL_MYDOCUMENTS = 12,
  /// <summary>music</summary>
  CSIDL_MYMUSIC = 13,
  /// <summary>videos</summary>
  CSIDL_MYVIDEO = 14,
  /// <summary>as <c>CSIDL_DESKTOP</c></summary>
  CSIDL_DESKTOPDIRECTORY = 16,
  /// <summary>none</summary>
  CSIDL_DRIVES = 17,
  /// <summary>none</summary>
  CSIDL_NETWORK = 18,
  /// <summary>none</summary>
  CSIDL_NETHOOD = 19,
  /// <summary>the machine's fonts</summary>
  CSIDL_FONTS = 20,
  /// <summary>templates of documents</summary>
  CSIDL_TEMPLATES = 21,
  /// <summary>as <c>CSIDL_COMMON_PROGRAMS</c></summary>
  CSIDL_COMMON_STARTMENU = 22,
  /// <summary>starters of everybody's programs</summary>
  CSIDL_COMMON_PROGRAMS = 23,
  /// <summary>programs that start when anybody logs in</summary>
  CSIDL_COMMON_STARTUP = 24,
  /// <summary>none</summary>
  CSIDL_COMMON_DESKTOPDIRECTORY = 25,
  /// <summary>settings of programs</summary>
  CSIDL_APPDATA = 26,
  /// <summary>data of programs</summary>
  CSIDL_LOCAL_APPDATA = 28,
  /// <summary>pictures</summary>
  CSIDL_MYPICTURES = 39,
}

/// <summary>Settings, logs and whole texts in text files.</summary>
/// <remarks>
/// <para>The code page of the files is Windows-874.</para>
/// <para>Every operation names its file by a path text, "C:\srv\app\set.ini" (docs/files.md), and
/// leaves no file open. Lines end at CR LF, LF or CR when read and are written with CR LF. A
/// character outside the code page is written as "?".</para>
/// <para>An existing file is rewritten through a temporary file beside it, whose name ends in
/// "$$$$": at any moment the disk holds the whole old file or the whole new one. A rewrite keeps
/// the file's owner and rights but clears its read-only state. After a failure the temporary file
/// may stay; the next rewrite removes it.</para>
/// <para>Objects that rewrite one file at a time, in any number of threads and processes, wait for
/// each other, for ten seconds at most; then the operation fails like any other. On a file system
/// without locks they do not wait, and one can undo the other's change. Nobody waits to read or to
/// append. A new file is written whole or not at all. An instance belongs to one thread at a time;
/// distinct instances are independent.</para>
/// </remarks>
public sealed unsafe partial class ASCIIObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public ASCIIObject(Services services = null)
      : base(ObjectHandle.Create("ASCIIObject", services)) {}

  /// <summary>Messages are shown from level 1 up.</summary>
  /// <remarks>
  /// <para>They report problems, in a message box titled "Warning". At 0, the level of a new
  /// object, every operation is silent, contrary to the name. docs/surprises.md shows a host that
  /// records them.</para>
  /// </remarks>
  public short DisableMsgLevel {
    get => Handle.Get(9).TakeInteger();
    set {
      var value_ = new Value();
      value_.Set(value);
      Handle.Set(9, &value_);
    }
  }

  /// <summary>The value of a key.</summary>
  /// <returns>For example, <c>Setvalue("C:\\shop\\set.ini", "Port", "9600");
  /// GetValue("C:\\shop\\set.ini", "PORT")</c> returns <c>"9600"</c>.</returns>
  /// <remarks>
  /// <para>That of the key's first line with a "="; empty if there is no such line or file. Blanks
  /// between "]" and "=" do not count; those after "=" are part of the value.</para>
  /// <para>If no line of the key has a "=", the text after "]" in the last of them: "[A]x" gives
  /// "x", which old settings rely on. If the file cannot be read, returns the empty text and shows
  /// the message "Not found specified file".</para>
  /// </remarks>
  public string GetValue(string iTextFile, string IKey) {
    fixed (char* text0_ = iTextFile, text1_ = IKey) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, iTextFile);
      values_[1].Set(text1_, IKey);
      return Handle.InvokeText(1, values_, 2);
    }
  }

  /// <summary>Sets the value of a key.</summary>
  /// <param name="iTextFile"></param>
  /// <param name="IKey"></param>
  /// <param name="iValue">A line break in <c>iValue</c> makes further lines
  /// (docs/surprises.md).</param>
  /// <remarks>
  /// <para>Sets every line of the key to <c>[IKEY]=iValue</c>, with the key in upper case, and
  /// appends such a line if there is none. A new file gets the key as it is typed. A line break in
  /// <c>iValue</c> makes further lines (docs/surprises.md).</para>
  /// <para>A failure leaves the file as it was and shows a message: "Not found specified folder.",
  /// "Specified folder can not write." (a new file in a read-only folder) or "Not found specified
  /// folder or no permission to write.".</para>
  /// </remarks>
  public void Setvalue(string iTextFile, string IKey, string iValue) {
    fixed (char* text0_ = iTextFile, text1_ = IKey, text2_ = iValue) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, iTextFile);
      values_[1].Set(text1_, IKey);
      values_[2].Set(text2_, iValue);
      Handle.Invoke(2, values_, 3);
    }
  }

  /// <summary>Deletes a key.</summary>
  /// <remarks>
  /// <para>Deletes every line of the key, and does nothing if there is no such file. On failure it
  /// shows no message but raises 57, 61, 70, 75 or 76, and the file stays as it was.</para>
  /// </remarks>
  public void DeleteValue(string iTextFile, string IKey) {
    fixed (char* text0_ = iTextFile, text1_ = IKey) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, iTextFile);
      values_[1].Set(text1_, IKey);
      Handle.Invoke(3, values_, 2);
    }
  }

  /// <summary>Appends a line with date and time to a log.</summary>
  /// <remarks>
  /// <para>The line is "3/7/2024;9:05:07 AM;iOwner;iType;iSuccess;iDescription": month, day and
  /// Gregorian year of the clock, the locale's time text, and the fields as they are, even with a
  /// ";" in them. Creates the file if there is none.</para>
  /// <para>Messages: "Not found specified folder.", also for a path without "\"; "Specified folder
  /// or no permission to updated." for a read-only folder, even if the file exists; "Not found
  /// specified folder or no permission to write.", also for a read-only file, whoever asks. A full
  /// disk can leave part of the line.</para>
  /// </remarks>
  public void AddLog(string iTextFile, string iOwner, string iType, string iSuccess,
      string iDescription) {
    fixed (char* text0_ = iTextFile, text1_ = iOwner, text2_ = iType, text3_ = iSuccess,
        text4_ = iDescription) {
      Value* values_ = stackalloc Value[5];
      values_[0].Set(text0_, iTextFile);
      values_[1].Set(text1_, iOwner);
      values_[2].Set(text2_, iType);
      values_[3].Set(text3_, iSuccess);
      values_[4].Set(text4_, iDescription);
      Handle.Invoke(4, values_, 5);
    }
  }

  /// <summary>All lines of a file.</summary>
  /// <returns>For example, <c>SaveStringToTextFile("C:\\shop\\note.txt", "one\r\ntwo");
  /// GETAllTextFile("C:\\shop\\note.txt")</c> returns <c>"one two"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 57, 70 or 75 if it cannot be read.</exception>
  /// <remarks>
  /// <para>Joined by CR LF, without empty lines at the front. Empty if there is no such file.
  /// Raises 57, 70 or 75 if it cannot be read.</para>
  /// </remarks>
  public string GETAllTextFile(string iTextFile) {
    fixed (char* text0_ = iTextFile) {
      var value_ = new Value();
      value_.Set(text0_, iTextFile);
      return Handle.InvokeText(5, &value_, 1);
    }
  }

  /// <summary>The first lines of a file, as many as from <c>FromLine</c> to
  /// <c>ToLine</c>.</summary>
  /// <param name="iTextFile"></param>
  /// <param name="FromLine">The first lines of a file, as many as from <c>FromLine</c> to
  /// <c>ToLine</c>. A <c>FromLine</c> below 1 counts as 1; a <c>ToLine</c> of 0 means all lines.
  /// <c>FromLine</c> skips no line: 3 to 4 returns lines 1 and 2.</param>
  /// <param name="ToLine">The first lines of a file, as many as from <c>FromLine</c> to
  /// <c>ToLine</c>. A <c>FromLine</c> below 1 counts as 1; a <c>ToLine</c> of 0 means all lines. A
  /// file with more lines than that raises 6, so pass a <c>ToLine</c> only if the count is
  /// known.</param>
  /// <returns>For example, <c>SaveStringToTextFile("C:\\shop\\note.txt", "one\r\ntwo");
  /// GETLineTextFile("C:\\shop\\note.txt", 1, 2)</c> returns <c>"one two"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 57, 70 or 75 if the file cannot be read; empty if
  /// there is none.</exception>
  /// <remarks>
  /// <para>A <c>FromLine</c> below 1 counts as 1; a <c>ToLine</c> of 0 means all lines. Joined by
  /// CR LF, without empty lines at the front.</para>
  /// <para><c>FromLine</c> skips no line: 3 to 4 returns lines 1 and 2. A file with more lines than
  /// that raises 6, so pass a <c>ToLine</c> only if the count is known. Raises 57, 70 or 75 if the
  /// file cannot be read; empty if there is none.</para>
  /// </remarks>
  public string GETLineTextFile(string iTextFile, int FromLine = 0, int ToLine = 0) {
    fixed (char* text0_ = iTextFile) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, iTextFile);
      values_[1].Set(FromLine);
      values_[2].Set(ToLine);
      return Handle.InvokeText(6, values_, ToLine != 0 ? 3 : FromLine != 0 ? 2 : 1);
    }
  }

  /// <summary>Makes a text the content of a file.</summary>
  /// <param name="iTextFile"></param>
  /// <param name="iValue"><c>iValue</c> is the whole content, with no line end added.</param>
  /// <remarks>
  /// <para><c>iValue</c> is the whole content, with no line end added. <c>SaveStringToTextFile2</c>
  /// lists the messages.</para>
  /// </remarks>
  public void SaveStringToTextFile(string iTextFile, string iValue) {
    fixed (char* text0_ = iTextFile, text1_ = iValue) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, iTextFile);
      values_[1].Set(text1_, iValue);
      Handle.Invoke(7, values_, 2);
    }
  }

  /// <summary>Makes a text the content of a file, or appends it.</summary>
  /// <param name="iTextFile"></param>
  /// <param name="iValue">As <c>SaveStringToTextFile</c>, or with <c>UseAppendMode</c> appends
  /// <c>iValue</c> to an existing file that is not read-only; a full disk can then leave part of
  /// it.</param>
  /// <param name="UseAppendMode">As <c>SaveStringToTextFile</c>, or with <c>UseAppendMode</c>
  /// appends <c>iValue</c> to an existing file that is not read-only; a full disk can then leave
  /// part of it.</param>
  /// <remarks>
  /// <para>As <c>SaveStringToTextFile</c>, or with <c>UseAppendMode</c> appends <c>iValue</c> to an
  /// existing file that is not read-only; a full disk can then leave part of it.</para>
  /// <para>Messages: "Not found specified folder."; "Specified folder can not write." for a new
  /// file in a read-only folder, unless the folder's name is Desktop; "Not found specified folder
  /// or no permission to write.".</para>
  /// </remarks>
  public void SaveStringToTextFile2(string iTextFile, string iValue, bool UseAppendMode = false) {
    fixed (char* text0_ = iTextFile, text1_ = iValue) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, iTextFile);
      values_[1].Set(text1_, iValue);
      values_[2].Set(UseAppendMode);
      Handle.Invoke(8, values_, UseAppendMode ? 3 : 2);
    }
  }
}

/// <summary>Money amounts in Thai or English words.</summary>
/// <remarks>
/// <para>For cheques, receipts and invoices.</para>
/// <para>Amounts are rounded to satang as they print: to 15 significant digits, then half away from
/// zero. Infinities and NaN give the empty text; no operation raises.</para>
/// <para>An instance keeps the unit words of its last <c>MoneyText</c>, and <c>MoneyTextT</c> uses
/// them; so an instance belongs to one thread at a time. Distinct instances are independent.</para>
/// </remarks>
public sealed unsafe partial class BahtStringObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public BahtStringObject(Services services = null)
      : base(ObjectHandle.Create("BahtStringObject", services)) {}

  /// <summary>An amount in words, in any currency.</summary>
  /// <param name="inDouble"></param>
  /// <param name="useBreak"><c>useBreak</c> puts "=" at both ends.</param>
  /// <param name="useEnglish">121.50 is "หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์", with <c>useEnglish</c> "One
  /// hundred twenty one baht and fifty satang".</param>
  /// <param name="NewUnit"><c>NewUnit</c> replaces the currency word, in lower case in English,
  /// without a plural.</param>
  /// <param name="NewSubUnit"><c>NewSubUnit</c> has no effect: the sub-unit follows from the unit,
  /// "สตางค์" for "บาท", "satang" for "baht" and "THB" in any case, "cent" for any other.</param>
  /// <returns>For example, <c>MoneyText(121.5)</c> returns
  /// <c>"หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์"</c>.</returns>
  /// <remarks>
  /// <para>121.50 is "หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์", with <c>useEnglish</c> "One hundred twenty one
  /// baht and fifty satang". <c>useBreak</c> puts "=" at both ends. Empty beyond 9999999999999.99
  /// either way.</para>
  /// <para><c>NewUnit</c> replaces the currency word, in lower case in English, without a plural.
  /// <c>NewSubUnit</c> has no effect: the sub-unit follows from the unit, "สตางค์" for "บาท",
  /// "satang" for "baht" and "THB" in any case, "cent" for any other.</para>
  /// <para>0 is "ศูนย์บาทถ้วน" whatever the unit and "Zerobaht" in English, both without "=". A Thai
  /// amount below 1 has no unit word, so a negative one is only its digits and "ถ้วน": -5.25 is
  /// "ห้าถ้วน". Any fraction adds the sub-unit, even one that rounds away: 5.001 is "ห้าบาทสตางค์". So
  /// round a computed amount first (docs/surprises.md).</para>
  /// </remarks>
  public string MoneyText(double inDouble, bool useBreak = false, bool useEnglish = false,
      string NewUnit = "", string NewSubUnit = "") {
    fixed (char* text3_ = NewUnit, text4_ = NewSubUnit) {
      Value* values_ = stackalloc Value[5];
      values_[0].Set(inDouble);
      values_[1].Set(useBreak);
      values_[2].Set(useEnglish);
      values_[3].Set(text3_, NewUnit);
      values_[4].Set(text4_, NewSubUnit);
      return Handle.InvokeText(1, values_, (NewSubUnit == null || NewSubUnit.Length > 0) ? 5 :
          (NewUnit == null || NewUnit.Length > 0) ? 4 : useEnglish ? 3 : useBreak ? 2 : 1);
    }
  }

  /// <summary>The same as <c>MoneyText</c>.</summary>
  /// <returns>For example, <c>BahtString(20, True)</c> returns <c>"=ยี่สิบบาทถ้วน="</c>.</returns>
  public string BahtString(double inDouble, bool useBreak = false, bool useEnglish = false,
      string NewUnit = "", string NewSubUnit = "") {
    fixed (char* text3_ = NewUnit, text4_ = NewSubUnit) {
      Value* values_ = stackalloc Value[5];
      values_[0].Set(inDouble);
      values_[1].Set(useBreak);
      values_[2].Set(useEnglish);
      values_[3].Set(text3_, NewUnit);
      values_[4].Set(text4_, NewSubUnit);
      return Handle.InvokeText(2, values_, (NewSubUnit == null || NewSubUnit.Length > 0) ? 5 :
          (NewUnit == null || NewUnit.Length > 0) ? 4 : useEnglish ? 3 : useBreak ? 2 : 1);
    }
  }

  /// <summary>An amount in Thai words with the unit words of the last <c>MoneyText</c>.</summary>
  /// <returns>For example, <c>MoneyTextT(20)</c> returns <c>"ยี่สิบบาทถ้วน"</c>.</returns>
  /// <remarks>
  /// <para>The last on this instance; on a new one they are "บาท" and "สตางค์". The amount has no
  /// bound.</para>
  /// </remarks>
  public string MoneyTextT(double inDouble) {
    var value_ = new Value();
    value_.Set(inDouble);
    return Handle.InvokeText(3, &value_, 1);
  }

  /// <summary>The same as <c>MoneyTextT</c>.</summary>
  /// <returns>For example, <c>BahtStringT(1)</c> returns <c>"หนึ่งบาทถ้วน"</c>.</returns>
  public string BahtStringT(double inDouble) {
    var value_ = new Value();
    value_.Set(inDouble);
    return Handle.InvokeText(4, &value_, 1);
  }

  /// <summary>An amount in English words with baht and satang.</summary>
  /// <returns>For example, <c>MoneyTextE(0.56)</c> returns <c>" baht and fifty six
  /// satang"</c>.</returns>
  /// <remarks>
  /// <para>The amount has no bound; groups from 10^15 up have " ?" for their scale. 0 is "Zero
  /// baht"; 0.56 is " baht and fifty six satang", which begins with a blank
  /// (docs/surprises.md).</para>
  /// </remarks>
  public string MoneyTextE(double inDouble) {
    var value_ = new Value();
    value_.Set(inDouble);
    return Handle.InvokeText(5, &value_, 1);
  }

  /// <summary>The same as <c>MoneyTextE</c>.</summary>
  /// <returns>For example, <c>BahtStringE(0)</c> returns <c>"Zero baht"</c>.</returns>
  public string BahtStringE(double inDouble) {
    var value_ = new Value();
    value_.Set(inDouble);
    return Handle.InvokeText(6, &value_, 1);
  }

  /// <summary>Always the empty text.</summary>
  /// <returns>For example, <c>MonthText(1, True, True)</c> returns <c>""</c>.</returns>
  /// <remarks>
  /// <para>Month names come from <c>StandardObject</c>.</para>
  /// </remarks>
  public string MonthText(short MonthNumber, bool FullText, bool UseThai) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(MonthNumber);
    values_[1].Set(FullText);
    values_[2].Set(UseThai);
    return Handle.InvokeText(7, values_, 3);
  }

  /// <summary>Who made the library.</summary>
  /// <returns>For example, <c>About()</c> returns <c>"ZQ7Standard, by the ZQ7Standard
  /// contributors"</c>.</returns>
  public string About() => Handle.InvokeText(8, null, 0);
}

/// <summary>Binary, octal and hexadecimal text, column letters and single bits.</summary>
/// <remarks>
/// <para>Texts have the most significant digit first. Hosts keep texts and numbers made here in
/// their files, so the 16-bit limits and the leading zeros never change. There is no state:
/// distinct instances, and one instance between calls, are independent.</para>
/// </remarks>
public sealed unsafe partial class BitByteObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public BitByteObject(Services services = null)
      : base(ObjectHandle.Create("BitByteObject", services)) {}

  /// <summary>A binary text as octal digits.</summary>
  /// <returns>For example, <c>Bin2Oct("1000")</c> returns <c>"10"</c>.</returns>
  /// <remarks>
  /// <para>One octal digit for three bits, with zeros added in front to fill the first group:
  /// "1000" is "10". A group with any character but "0" and "1" yields no digit; the others still
  /// do.</para>
  /// </remarks>
  public string Bin2Oct(string BinString) {
    fixed (char* text0_ = BinString) {
      var value_ = new Value();
      value_.Set(text0_, BinString);
      return Handle.InvokeText(1, &value_, 1);
    }
  }

  /// <summary>A binary text as hexadecimal digits.</summary>
  /// <returns>For example, <c>Bin2hex("101")</c> returns <c>"5"</c>.</returns>
  /// <remarks>
  /// <para>One hexadecimal digit in upper case for four bits, otherwise as <c>Bin2Oct</c>: "101" is
  /// "5".</para>
  /// </remarks>
  public string Bin2hex(string BinString) {
    fixed (char* text0_ = BinString) {
      var value_ = new Value();
      value_.Set(text0_, BinString);
      return Handle.InvokeText(2, &value_, 1);
    }
  }

  /// <summary>The number of a binary text.</summary>
  /// <returns>For example, <c>Bin2Dec("1010")</c> returns <c>10</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 above 13815: its octal digits, 32767, are the last
  /// that read as a 16-bit decimal number, and callers take the error as the end of the
  /// range.</exception>
  /// <remarks>
  /// <para>0 for the empty text and for one with any character but "0" and "1". Raises 6 above
  /// 13815: its octal digits, 32767, are the last that read as a 16-bit decimal number, and callers
  /// take the error as the end of the range.</para>
  /// </remarks>
  public short Bin2Dec(string BinString) {
    fixed (char* text0_ = BinString) {
      var value_ = new Value();
      value_.Set(text0_, BinString);
      return Handle.Invoke(3, &value_, 1).TakeInteger();
    }
  }

  /// <summary>Octal digits as binary text.</summary>
  /// <param name="OctString"></param>
  /// <param name="KeepZeroFront">Without <c>KeepZeroFront</c> all leading zeros are dropped: "0"
  /// and "000" are then the empty text, which callers show as a blank box.</param>
  /// <returns>For example, <c>Oct2Bin("17")</c> returns <c>"1111"</c>.</returns>
  /// <remarks>
  /// <para>Three bits for each octal digit; other characters add nothing. Without
  /// <c>KeepZeroFront</c> all leading zeros are dropped: "0" and "000" are then the empty text,
  /// which callers show as a blank box.</para>
  /// </remarks>
  public string Oct2Bin(string OctString, bool KeepZeroFront = false) {
    fixed (char* text0_ = OctString) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, OctString);
      values_[1].Set(KeepZeroFront);
      return Handle.InvokeText(4, values_, KeepZeroFront ? 2 : 1);
    }
  }

  /// <summary>Hexadecimal digits as binary text.</summary>
  /// <returns>For example, <c>Hex2Bin("5")</c> returns <c>"101"</c>.</returns>
  /// <remarks>
  /// <para>Four bits for each hexadecimal digit of either case, otherwise as <c>Oct2Bin</c>.</para>
  /// </remarks>
  public string Hex2Bin(string HexString, bool KeepZeroFront = false) {
    fixed (char* text0_ = HexString) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, HexString);
      values_[1].Set(KeepZeroFront);
      return Handle.InvokeText(5, values_, KeepZeroFront ? 2 : 1);
    }
  }

  /// <summary>Octal digits as hexadecimal digits.</summary>
  /// <returns>For example, <c>Oct2hex("17")</c> returns <c>"F"</c>.</returns>
  /// <remarks>
  /// <para><c>Bin2hex</c> of <c>Oct2Bin</c> without leading zeros: "17" is "F", "0" is
  /// empty.</para>
  /// </remarks>
  public string Oct2hex(string OctString) {
    fixed (char* text0_ = OctString) {
      var value_ = new Value();
      value_.Set(text0_, OctString);
      return Handle.InvokeText(6, &value_, 1);
    }
  }

  /// <summary>Hexadecimal digits as octal digits.</summary>
  /// <returns>For example, <c>Hex2Oct("F")</c> returns <c>"17"</c>.</returns>
  /// <remarks>
  /// <para><c>Bin2Oct</c> of <c>Hex2Bin</c> without leading zeros: "F" is "17", "0" is
  /// empty.</para>
  /// </remarks>
  public string Hex2Oct(string HexString) {
    fixed (char* text0_ = HexString) {
      var value_ = new Value();
      value_.Set(text0_, HexString);
      return Handle.InvokeText(7, &value_, 1);
    }
  }

  /// <summary>Decimal digits read as an octal number.</summary>
  /// <param name="OctString">The digits of <c>OctString</c>: 17 gives 15.</param>
  /// <returns>For example, <c>Oct2Dec(17)</c> returns <c>15</c>.</returns>
  /// <remarks>
  /// <para>The digits of <c>OctString</c>: 17 gives 15. Reading stops at a digit 8 or 9 (187 gives
  /// 1), and a negative number gives 0.</para>
  /// </remarks>
  public short Oct2Dec(short OctString) {
    var value_ = new Value();
    value_.Set(OctString);
    return Handle.Invoke(8, &value_, 1).TakeInteger();
  }

  /// <summary>Decimal digits read as a hexadecimal number.</summary>
  /// <param name="HexString">The digits of <c>HexString</c>: 10 gives 16, and 9999, whose sign bit
  /// of 16 is set, gives -26215.</param>
  /// <returns>For example, <c>Hex2Dec(10)</c> returns <c>16</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 from five digits up.</exception>
  /// <remarks>
  /// <para>The digits of <c>HexString</c>: 10 gives 16, and 9999, whose sign bit of 16 is set,
  /// gives -26215. A negative number gives 0. Raises 6 from five digits up.</para>
  /// </remarks>
  public short Hex2Dec(short HexString) {
    var value_ = new Value();
    value_.Set(HexString);
    return Handle.Invoke(9, &value_, 1).TakeInteger();
  }

  /// <summary>The number of hexadecimal digits.</summary>
  /// <returns>For example, <c>Hex2Dec2("FF")</c> returns <c>255</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 outside 16 bits.</exception>
  /// <remarks>
  /// <para>Digits of either case up to the first other character; 0 if there are none. Up to FFFF
  /// the number is 16-bit signed ("FFFF" is -1), above that 32-bit signed, so that the
  /// <c>Dec2hex</c> of a negative 16-bit number reads back. Raises 6 outside 16 bits.</para>
  /// </remarks>
  public short Hex2Dec2(string HexString) {
    fixed (char* text0_ = HexString) {
      var value_ = new Value();
      value_.Set(text0_, HexString);
      return Handle.Invoke(10, &value_, 1).TakeInteger();
    }
  }

  /// <summary>A number as octal digits.</summary>
  /// <param name="DecNumber">A negative <c>DecNumber</c> counts as 32-bit two's complement: -1 is
  /// "37777777777".</param>
  /// <returns>For example, <c>Dec2Oct(8)</c> returns <c>"10"</c>.</returns>
  /// <remarks>
  /// <para>A negative <c>DecNumber</c> counts as 32-bit two's complement: -1 is
  /// "37777777777".</para>
  /// </remarks>
  public string Dec2Oct(int DecNumber) {
    var value_ = new Value();
    value_.Set(DecNumber);
    return Handle.InvokeText(11, &value_, 1);
  }

  /// <summary>A number as hexadecimal digits.</summary>
  /// <param name="DecNumber">A negative <c>DecNumber</c> counts as 32-bit two's complement: -1 is
  /// "FFFFFFFF".</param>
  /// <returns>For example, <c>Dec2hex(255)</c> returns <c>"FF"</c>.</returns>
  /// <remarks>
  /// <para>In upper case. A negative <c>DecNumber</c> counts as 32-bit two's complement: -1 is
  /// "FFFFFFFF".</para>
  /// </remarks>
  public string Dec2hex(int DecNumber) {
    var value_ = new Value();
    value_.Set(DecNumber);
    return Handle.InvokeText(12, &value_, 1);
  }

  /// <summary>A number as binary text, three bits a group.</summary>
  /// <param name="Dec">The bits of the octal digits of <c>Dec</c>, three for each: 5 is "101", 8 is
  /// "001000", 0 is "000", and a negative number has 33.</param>
  /// <param name="KeepZeroFront"><c>KeepZeroFront</c> has no effect: callers cut the text into
  /// groups of three from the front.</param>
  /// <returns>For example, <c>Dec2Bin(5)</c> returns <c>"101"</c>.</returns>
  /// <remarks>
  /// <para>The bits of the octal digits of <c>Dec</c>, three for each: 5 is "101", 8 is "001000", 0
  /// is "000", and a negative number has 33. <c>KeepZeroFront</c> has no effect: callers cut the
  /// text into groups of three from the front.</para>
  /// </remarks>
  public string Dec2Bin(int Dec, bool KeepZeroFront = false) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(Dec);
    values_[1].Set(KeepZeroFront);
    return Handle.InvokeText(13, values_, KeepZeroFront ? 2 : 1);
  }

  /// <summary>The number of a spreadsheet column.</summary>
  /// <returns>For example, <c>Base26To10("AA")</c> returns <c>27</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 above 2147483647 ("FXSHRXW").</exception>
  /// <remarks>
  /// <para>"A" is 1, "Z" 26, "AA" 27. Any character but "A" to "Z", lower case included, makes the
  /// result 0, which callers take for "no such column". Raises 6 above 2147483647
  /// ("FXSHRXW").</para>
  /// </remarks>
  public int Base26To10(string Base26) {
    fixed (char* text0_ = Base26) {
      var value_ = new Value();
      value_.Set(text0_, Base26);
      return Handle.Invoke(14, &value_, 1).TakeLong();
    }
  }

  /// <summary>The letters of a spreadsheet column.</summary>
  /// <returns>For example, <c>Base10To26(702)</c> returns <c>"ZZ"</c>.</returns>
  /// <remarks>
  /// <para>27 is "AA", 702 is "ZZ". Empty for 0 and negative numbers.</para>
  /// </remarks>
  public string Base10To26(short colNum) {
    var value_ = new Value();
    value_.Set(colNum);
    return Handle.InvokeText(15, &value_, 1);
  }

  /// <summary>Whether a bit is set; bits count from the right, from 1.</summary>
  /// <param name="DecNumber"></param>
  /// <param name="BitDigitFormBack">-1 if the bit is set, else 0; also 0 for a
  /// <c>BitDigitFormBack</c> that the number's <c>Dec2Bin</c> does not have.</param>
  /// <returns>For example, <c>BitRead(5, 1)</c> returns <c>-1</c>.</returns>
  /// <remarks>
  /// <para>-1 if the bit is set, else 0; also 0 for a <c>BitDigitFormBack</c> that the number's
  /// <c>Dec2Bin</c> does not have. A negative number has bits up to position 32.</para>
  /// </remarks>
  public short BitRead(short DecNumber, byte BitDigitFormBack) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(DecNumber);
    values_[1].Set(BitDigitFormBack);
    return Handle.Invoke(16, values_, 2).TakeInteger();
  }

  /// <summary>A number with a bit set by 1 or cleared by any other value.</summary>
  /// <param name="DecNumber"></param>
  /// <param name="BitDigitFormBack"></param>
  /// <param name="NewValue">It is set only if <c>NewValue</c> is exactly 1: the -1 of
  /// <c>BitRead</c> clears, as callers that copy a bit know. 0 for a position that the number's
  /// <c>Dec2Bin</c> does not have: <c>BitWrite(5, 4, 1)</c> is 0 (docs/surprises.md).</param>
  /// <returns>For example, <c>BitWrite(5, 2, 1)</c> returns <c>7</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 if the result is negative or above 13815, as
  /// <c>Bin2Dec</c> does.</exception>
  /// <remarks>
  /// <para>It is set only if <c>NewValue</c> is exactly 1: the -1 of <c>BitRead</c> clears, as
  /// callers that copy a bit know. 0 for a position that the number's <c>Dec2Bin</c> does not have:
  /// <c>BitWrite(5, 4, 1)</c> is 0 (docs/surprises.md). Raises 6 if the result is negative or above
  /// 13815, as <c>Bin2Dec</c> does.</para>
  /// </remarks>
  public short BitWrite(short DecNumber, byte BitDigitFormBack, short NewValue) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(DecNumber);
    values_[1].Set(BitDigitFormBack);
    values_[2].Set(NewValue);
    return Handle.Invoke(17, values_, 3).TakeInteger();
  }

  /// <summary>A number with a bit cleared.</summary>
  /// <returns>For example, <c>BitSwitch(5, 1)</c> returns <c>4</c>.</returns>
  /// <remarks>
  /// <para>Never sets it: hosts remove a flag with it, and a second call must not bring it back.
  /// Otherwise as <c>BitWrite</c>.</para>
  /// </remarks>
  public short BitSwitch(short DecNumber, byte BitDigitFormBack) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(DecNumber);
    values_[1].Set(BitDigitFormBack);
    return Handle.Invoke(18, values_, 2).TakeInteger();
  }
}

/// <summary>The kind, size and colour depth of an image file.</summary>
/// <remarks>
/// <para>Read from its first 65,536 bytes without decoding the image: GIF, JPEG, PNG and
/// BMP.</para>
/// <para>The properties describe the last file read; before the first and after an error all four
/// are 0. An instance belongs to one thread at a time; distinct instances are independent.</para>
/// </remarks>
public sealed unsafe partial class CImageInfo : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public CImageInfo(Services services = null)
      : base(ObjectHandle.Create("CImageInfo", services)) {}

  /// <summary>The width in pixels.</summary>
  public int Width => Handle.Get(1).TakeLong();

  /// <summary>The height in pixels.</summary>
  public int Height => Handle.Get(2).TakeLong();

  /// <summary>Bits per pixel.</summary>
  public byte Depth => Handle.Get(3).TakeByte();

  /// <summary>The kind of file.</summary>
  public eImageType ImageType => (eImageType)Handle.Get(4).TakeLong();

  /// <summary>Reads a file and sets the properties from it.</summary>
  /// <param name="sFileName"><c>sFileName</c> is a full path; it is read in one go.</param>
  /// <exception cref="RunTimeException">Raises 6 for a depth beyond 255 bits (a JPEG of 32
  /// components), 76 if there is no such folder, 70 for a file that may not be both read and
  /// written (a read-only one whoever asks), and 75 for a folder, a pipe or a device.</exception>
  /// <remarks>
  /// <para><c>sFileName</c> is a full path; it is read in one go. Unknown content is not a failure:
  /// <c>ImageType</c> is <c>itUNKNOWN</c> and the rest 0. A file that does not exist is created
  /// empty, and is unknown too.</para>
  /// <para>Sizes have 16 bits: a PNG 70,000 pixels wide has the <c>Width</c> 4,464, and a BMP
  /// stored top down the <c>Height</c> 65,536 less its own. The frame header of a JPEG is looked
  /// for in the first 65,525 bytes. A PNG with a palette has the depth 8, however few bits it
  /// stores.</para>
  /// <para>Raises 6 for a depth beyond 255 bits (a JPEG of 32 components), 76 if there is no such
  /// folder, 70 for a file that may not be both read and written (a read-only one whoever asks),
  /// and 75 for a folder, a pipe or a device.</para>
  /// </remarks>
  public void ReadImageInfo(string sFileName) {
    fixed (char* text0_ = sFileName) {
      var value_ = new Value();
      value_.Set(text0_, sFileName);
      Handle.Invoke(5, &value_, 1);
    }
  }
}

/// <summary>Splits and shortens paths, creates folders and copies files.</summary>
/// <remarks>
/// <para>"\" is the only separator in path texts: "/" is a character like any other. It keeps
/// nothing between calls. An instance belongs to one thread at a time; distinct instances are
/// independent.</para>
/// </remarks>
public sealed unsafe partial class DiskObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public DiskObject(Services services = null)
      : base(ObjectHandle.Create("DiskObject", services)) {}

  /// <summary>The text after the last "\".</summary>
  /// <returns>For example, <c>FileName("C:\\a\\b.txt")</c> returns <c>"b.txt"</c>.</returns>
  /// <remarks>
  /// <para>"b.txt" of "C:\a\b.txt", empty for "C:\a\"; the whole text if it has no "\".</para>
  /// </remarks>
  public string FileName(string full_name) {
    fixed (char* text0_ = full_name) {
      var value_ = new Value();
      value_.Set(text0_, full_name);
      return Handle.InvokeText(1, &value_, 1);
    }
  }

  /// <summary>The text before the last "\".</summary>
  /// <returns>For example, <c>Pathname("C:\\a\\b.txt")</c> returns <c>"C:\a"</c>.</returns>
  /// <remarks>
  /// <para>"C:\a" of "C:\a\b.txt", "C:" of "C:\b.txt"; empty if it has no "\".</para>
  /// </remarks>
  public string Pathname(string full_name) {
    fixed (char* text0_ = full_name) {
      var value_ = new Value();
      value_.Set(text0_, full_name);
      return Handle.InvokeText(2, &value_, 1);
    }
  }

  /// <summary>A path without the "\" at its end.</summary>
  /// <param name="Path">However many <c>Path</c> ends with: "C:\a" of "C:\a\\".</param>
  /// <returns>For example, <c>trimPath("C:\\a\\\\")</c> returns <c>"C:\a"</c>.</returns>
  /// <remarks>
  /// <para>However many <c>Path</c> ends with: "C:\a" of "C:\a\\".</para>
  /// </remarks>
  public string trimPath(string Path) {
    fixed (char* text0_ = Path) {
      var value_ = new Value();
      value_.Set(text0_, Path);
      return Handle.InvokeText(3, &value_, 1);
    }
  }

  /// <summary>A path shortened for display.</summary>
  /// <param name="inFullPath"></param>
  /// <param name="MaxLen"><c>MaxLen</c> is ignored: it stays for callers that pass it, and a path
  /// is shortened at any length.</param>
  /// <returns>For example, <c>ScaleFullPath("C:\\Data\\Sales\\2024\\report.xls")</c> returns
  /// <c>"C:\Data\...\report.xls"</c>.</returns>
  /// <remarks>
  /// <para>Its folders between the first and the file name are left out: "C:\Data\...\report.xls",
  /// "\\srv\share\...\f.txt". A path without such folders only loses the spaces around it.
  /// <c>MaxLen</c> is ignored: it stays for callers that pass it, and a path is shortened at any
  /// length. A bare file name gets "\...\" in front.</para>
  /// </remarks>
  public string ScaleFullPath(string inFullPath, int MaxLen = 0) {
    fixed (char* text0_ = inFullPath) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, inFullPath);
      values_[1].Set(MaxLen);
      return Handle.InvokeText(4, values_, MaxLen != 0 ? 2 : 1);
    }
  }

  /// <summary>Creates the folders of a path that do not exist.</summary>
  /// <returns>For example, <c>CreateFullPath("C:\\shop\\2567\\01")</c> returns <c>-1</c>.</returns>
  /// <exception cref="RunTimeException">Raises what the file system does if a folder cannot be
  /// created: 70 without the right to, 75 if a file has its name.</exception>
  /// <remarks>
  /// <para>Returns -1; 0 if the path is empty or only of "\". Other processes may create them at
  /// the same time. Every "\" at its ends is dropped first, so a network path counts as relative to
  /// the current folder.</para>
  /// <para>Raises what the file system does if a folder cannot be created: 70 without the right to,
  /// 75 if a file has its name. Those created before it stay.</para>
  /// </remarks>
  public short CreateFullPath(string FullPathName) {
    fixed (char* text0_ = FullPathName) {
      var value_ = new Value();
      value_.Set(text0_, FullPathName);
      return Handle.Invoke(5, &value_, 1).TakeInteger();
    }
  }

  /// <summary>Copies a file if it changed; 1 if it tried to.</summary>
  /// <param name="FromFile">Copies <c>FromFile</c> to <c>ToFile</c>, with its last-modified time,
  /// if <c>ToFile</c> does not exist or has another one, older or newer. Returns 1 if it tried to
  /// copy, 0 if the times are equal or there is no file <c>FromFile</c>.</param>
  /// <param name="ToFile">Copies <c>FromFile</c> to <c>ToFile</c>, with its last-modified time, if
  /// <c>ToFile</c> does not exist or has another one, older or newer. Times are compared exactly,
  /// or as closely as the file system of <c>ToFile</c> is known to keep them. Either way an
  /// existing <c>ToFile</c> loses its read-only state, so that hosts can write to it
  /// afterwards.</param>
  /// <param name="OverwriteFile">It never raises: a copy that fails returns 1 as well, and without
  /// <c>OverwriteFile</c> every copy onto an existing file fails.</param>
  /// <param name="CheckCondition"><c>CheckCondition</c> is ignored: it stays for callers that pass
  /// it.</param>
  /// <returns>For example, <c>CopyFileCheck("C:\\shop\\none.txt", "C:\\shop\\copy.txt")</c> returns
  /// <c>0</c>.</returns>
  /// <remarks>
  /// <para>Copies <c>FromFile</c> to <c>ToFile</c>, with its last-modified time, if <c>ToFile</c>
  /// does not exist or has another one, older or newer. Times are compared exactly, or as closely
  /// as the file system of <c>ToFile</c> is known to keep them. Returns 1 if it tried to copy, 0 if
  /// the times are equal or there is no file <c>FromFile</c>. It never raises: a copy that fails
  /// returns 1 as well, and without <c>OverwriteFile</c> every copy onto an existing file
  /// fails.</para>
  /// <para>Either way an existing <c>ToFile</c> loses its read-only state, so that hosts can write
  /// to it afterwards. <c>CheckCondition</c> is ignored: it stays for callers that pass it.</para>
  /// </remarks>
  public short CopyFileCheck(string FromFile, string ToFile, bool OverwriteFile = false,
      short CheckCondition = 0) {
    fixed (char* text0_ = FromFile, text1_ = ToFile) {
      Value* values_ = stackalloc Value[4];
      values_[0].Set(text0_, FromFile);
      values_[1].Set(text1_, ToFile);
      values_[2].Set(OverwriteFile);
      values_[3].Set(CheckCondition);
      return Handle.Invoke(6, values_, CheckCondition != 0 ? 4 : OverwriteFile ? 3 :
          2).TakeInteger();
    }
  }

  /// <summary>Copies a folder tree; returns the number of entries.</summary>
  /// <param name="from_file">Copies the folder <c>from_file</c> with all it holds into the folder
  /// <c>to_file</c>, which it creates in an existing folder. Returns the number of entries copied
  /// and, unless <c>to_file</c> could not be created, one more; 0 if <c>from_file</c> is not a
  /// folder. A target inside <c>from_file</c>, by whatever path, raises 75 before anything is
  /// copied; a link in the tree raises 75 if it leads to a folder that it or the target is
  /// in.</param>
  /// <param name="to_file">Copies the folder <c>from_file</c> with all it holds into the folder
  /// <c>to_file</c>, which it creates in an existing folder. Returns the number of entries copied
  /// and, unless <c>to_file</c> could not be created, one more; 0 if <c>from_file</c> is not a
  /// folder. Raises what the file system does, leaving in place what was copied until then: 75 for
  /// a subfolder that the target already has, so a tree with subfolders can be copied only once; 70
  /// for a read-only target file; 76 if <c>to_file</c> could not be created and there is something
  /// to copy.</param>
  /// <returns>For example, <c>CreateFullPath("C:\\shop\\2567\\01"); XCopyFile("C:\\shop\\2567",
  /// "C:\\shop\\old")</c> returns <c>2</c>.</returns>
  /// <exception cref="RunTimeException">Raises what the file system does, leaving in place what was
  /// copied until then: 75 for a subfolder that the target already has, so a tree with subfolders
  /// can be copied only once; 70 for a read-only target file; 76 if <c>to_file</c> could not be
  /// created and there is something to copy.</exception>
  /// <remarks>
  /// <para>Copies the folder <c>from_file</c> with all it holds into the folder <c>to_file</c>,
  /// which it creates in an existing folder. Returns the number of entries copied and, unless
  /// <c>to_file</c> could not be created, one more; 0 if <c>from_file</c> is not a folder.</para>
  /// <para>Files replace those of the target. Raises what the file system does, leaving in place
  /// what was copied until then: 75 for a subfolder that the target already has, so a tree with
  /// subfolders can be copied only once; 70 for a read-only target file; 76 if <c>to_file</c> could
  /// not be created and there is something to copy. A target inside <c>from_file</c>, by whatever
  /// path, raises 75 before anything is copied; a link in the tree raises 75 if it leads to a
  /// folder that it or the target is in.</para>
  /// </remarks>
  public int XCopyFile(string from_file, string to_file) {
    fixed (char* text0_ = from_file, text1_ = to_file) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, from_file);
      values_[1].Set(text1_, to_file);
      return Handle.Invoke(7, values_, 2).TakeLong();
    }
  }
}

/// <summary>The numbers behind a grid on the screen, with sums and a change event.</summary>
/// <remarks>
/// <para>Rows and columns of doubles, counted from 0. The first <c>FixedRows</c> rows and
/// <c>FixedCols</c> columns are headings; the rest is the data, which sums, deletion and blanking
/// act on.</para>
/// <para>A new grid has one row, no headings, and columns not yet set: until they are, there are no
/// cells. Columns are set once; rows come and go. After the last row and column there is a spare
/// one, at the index <c>Rows</c> and <c>Cols</c>, that only <c>GetValue</c> shows: when rows are
/// dropped, the first of them becomes the spare row with what it holds, and comes back with it. New
/// cells are 0.</para>
/// <para>A size that the machine cannot hold raises 7 and changes nothing, whichever operation asks
/// for it. Appending n rows takes time in proportion to n, and the memory kept is at most twice
/// what the cells need.</para>
/// <para>An instance belongs to one thread at a time; distinct instances are independent.</para>
/// </remarks>
public sealed unsafe partial class GridValueObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public GridValueObject(Services services = null)
      : base(ObjectHandle.Create("GridValueObject", services)) {}

  /// <summary>The number of rows; 1 on a new grid.</summary>
  public int Rows => Handle.Get(1).TakeLong();

  /// <summary>The number of columns; -1 until they are set.</summary>
  public int Cols => Handle.Get(2).TakeLong();

  /// <summary>The number of heading rows.</summary>
  public int FixedRows => Handle.Get(3).TakeLong();

  /// <summary>The number of heading columns.</summary>
  public int FixedCols => Handle.Get(4).TakeLong();

  /// <summary>Sets the columns of a new grid, and its headings.</summary>
  /// <param name="Rows">Sets the columns and returns true if they are not set yet, <c>Rows</c> and
  /// <c>Cols</c> are above 0 and the headings 0 or more; else returns false and changes nothing.
  /// <c>Rows</c> is not kept, so that a grid filled by <c>Setvalue</c> has the rows it was given
  /// and no blank ones: a new grid still has one.</param>
  /// <param name="Cols">Sets the columns and returns true if they are not set yet, <c>Rows</c> and
  /// <c>Cols</c> are above 0 and the headings 0 or more; else returns false and changes nothing.
  /// <c>FixedCols</c> is kept if below <c>Cols</c>, <c>FixedRows</c> if below the rows that the
  /// grid has, so never more than 0 on a new one.</param>
  /// <param name="FixedCols"><c>FixedCols</c> is kept if below <c>Cols</c>, <c>FixedRows</c> if
  /// below the rows that the grid has, so never more than 0 on a new one.</param>
  /// <param name="FixedRows"><c>FixedCols</c> is kept if below <c>Cols</c>, <c>FixedRows</c> if
  /// below the rows that the grid has, so never more than 0 on a new one.</param>
  /// <returns>For example, <c>SetFirst(1, 3, 1, 0)</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para>Sets the columns and returns true if they are not set yet, <c>Rows</c> and <c>Cols</c>
  /// are above 0 and the headings 0 or more; else returns false and changes nothing.</para>
  /// <para><c>Rows</c> is not kept, so that a grid filled by <c>Setvalue</c> has the rows it was
  /// given and no blank ones: a new grid still has one. <c>FixedCols</c> is kept if below
  /// <c>Cols</c>, <c>FixedRows</c> if below the rows that the grid has, so never more than 0 on a
  /// new one.</para>
  /// </remarks>
  public bool SetFirst(int Rows, int Cols, int FixedCols, int FixedRows) {
    Value* values_ = stackalloc Value[4];
    values_[0].Set(Rows);
    values_[1].Set(Cols);
    values_[2].Set(FixedCols);
    values_[3].Set(FixedRows);
    return Handle.Invoke(5, values_, 4).TakeBoolean();
  }

  /// <summary>Sets the number of rows.</summary>
  /// <remarks>
  /// <para>The number must be above 0 and above <c>FixedRows</c>; else nothing is done. Columns not
  /// yet set are then 0 for good, so set columns first (docs/surprises.md).</para>
  /// </remarks>
  public void SetRows(int Rows) {
    var value_ = new Value();
    value_.Set(Rows);
    Handle.Invoke(6, &value_, 1);
  }

  /// <summary>Sets the number of columns, once.</summary>
  /// <param name="Cols">Does nothing when they are set already, or <c>Cols</c> is not above
  /// 0.</param>
  /// <remarks>
  /// <para>Does nothing when they are set already, or <c>Cols</c> is not above 0.</para>
  /// </remarks>
  public void SetCols(int Cols) {
    var value_ = new Value();
    value_.Set(Cols);
    Handle.Invoke(7, &value_, 1);
  }

  /// <summary>Stores a number in a cell and tells the listeners.</summary>
  /// <param name="Row"></param>
  /// <param name="Col">Returns true; false, changing nothing, if <c>Col</c> is not below
  /// <c>Cols</c>.</param>
  /// <param name="Value"></param>
  /// <returns>For example, <c>SetCols(3); Setvalue(4, 2, 12.5)</c> returns <c>True</c>.</returns>
  /// <exception cref="RunTimeException">Raises 9 for a negative cell; a negative column in a row
  /// past the last makes the grid grow first, which gives a grid without columns the rows that
  /// <c>SetFirst</c> needs to keep <c>FixedRows</c>.</exception>
  /// <remarks>
  /// <para>Returns true; false, changing nothing, if <c>Col</c> is not below <c>Cols</c>. A row
  /// past the last makes the grid grow up to it. Headings are ordinary cells, so hosts may keep
  /// numbers there that no sum counts. What a listener throws reaches the caller: the value is
  /// stored by then, and the listeners after it are not told.</para>
  /// <para>Raises 9 for a negative cell; a negative column in a row past the last makes the grid
  /// grow first, which gives a grid without columns the rows that <c>SetFirst</c> needs to keep
  /// <c>FixedRows</c>.</para>
  /// </remarks>
  public bool Setvalue(int Row, int Col, double Value) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(Row);
    values_[1].Set(Col);
    values_[2].Set(Value);
    return Handle.Invoke(8, values_, 3).TakeBoolean();
  }

  /// <summary>The number in a cell.</summary>
  /// <returns>For example, <c>SetFirst(1, 3, 0, 0); Setvalue(1, 0, 1); Setvalue(1, 1, 2);
  /// GetValue(1, 1)</c> returns <c>2</c>.</returns>
  /// <exception cref="RunTimeException">Raises 9 for a negative cell, and for every cell until
  /// columns are set.</exception>
  /// <remarks>
  /// <para>A row or column past the end reads the spare one, so that loops that run one too far
  /// read 0 instead of failing. Raises 9 for a negative cell, and for every cell until columns are
  /// set.</para>
  /// </remarks>
  public double GetValue(int Row, int Col) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(Row);
    values_[1].Set(Col);
    return Handle.Invoke(9, values_, 2).TakeDouble();
  }

  /// <summary>Deletes a row.</summary>
  /// <remarks>
  /// <para>Heading rows are deleted too; does nothing if there is no such row. The data of the rows
  /// below moves up, the spare row's into the last. Heading columns and the spare column stay where
  /// they are, so that row numbers in a heading stay right.</para>
  /// </remarks>
  public void RemaveItem(int Row) {
    var value_ = new Value();
    value_.Set(Row);
    Handle.Invoke(10, &value_, 1);
  }

  /// <summary>Sets the data of a row to 0.</summary>
  /// <remarks>
  /// <para>Heading columns are left as they are; does nothing if there is no such row.</para>
  /// </remarks>
  public void ResetRow(int Row) {
    var value_ = new Value();
    value_.Set(Row);
    Handle.Invoke(11, &value_, 1);
  }

  /// <summary>Leaves the headings and one blank row.</summary>
  /// <remarks>
  /// <para>The heading columns keep what they hold.</para>
  /// </remarks>
  public void Clear() => Handle.Invoke(12, null, 0);

  /// <summary>The sum of a column's data.</summary>
  /// <returns>For example, <c>SetFirst(1, 3, 0, 0); Setvalue(1, 0, 1); Setvalue(1, 1, 2);
  /// SumCol(1)</c> returns <c>2</c>.</returns>
  /// <remarks>
  /// <para>Added from the top down; 0 for a heading and for a column that is not there.</para>
  /// </remarks>
  public double SumCol(int Col) {
    var value_ = new Value();
    value_.Set(Col);
    return Handle.Invoke(13, &value_, 1).TakeDouble();
  }

  /// <summary>The sum of a row's data.</summary>
  /// <returns>For example, <c>SetFirst(1, 3, 0, 0); Setvalue(1, 0, 1); Setvalue(1, 1, 2);
  /// SumRow(1)</c> returns <c>3</c>.</returns>
  /// <remarks>
  /// <para>Added from left to right; 0 for a heading and for a row that is not there.</para>
  /// </remarks>
  public double SumRow(int Row) {
    var value_ = new Value();
    value_.Set(Row);
    return Handle.Invoke(14, &value_, 1).TakeDouble();
  }

  /// <summary>Handles <see cref="DataChange"/>.</summary>
  public delegate void DataChangeHandler();

  /// <summary>Declared only, and never raised.</summary>
  /// <remarks>
  /// <para>It keeps its place in the interface for hosts that implement it; a change of any cell
  /// comes as <c>CellDataChange</c>.</para>
  /// </remarks>
  public event DataChangeHandler DataChange {
    add => Handle.Events.Add(15, value, (handlers_, values_) =>
        ((DataChangeHandler)handlers_)());
    remove => Handle.Events.Remove(15, value);
  }

  /// <summary>Handles <see cref="CellDataChange"/>.</summary>
  public delegate void CellDataChangeHandler(int Row, int Col);

  /// <summary>A cell was given a value. Rows and columns count from 0.</summary>
  /// <remarks>
  /// <para>The cell at (<c>Row</c>, <c>Col</c>) already holds it. The listener may call any
  /// operation of the grid, add and remove listeners, itself included, and throw; it must not
  /// destroy the grid.</para>
  /// </remarks>
  public event CellDataChangeHandler CellDataChange {
    add => Handle.Events.Add(16, value, (handlers_, values_) =>
        ((CellDataChangeHandler)handlers_)(values_[0].TakeLong(), values_[1].TakeLong()));
    remove => Handle.Events.Remove(16, value);
  }
}

/// <summary>Commands to devices on a serial line, such as a cash drawer.</summary>
/// <remarks>
/// <para>The host owns the control of the line and passes it to each call. An instance belongs to
/// one thread at a time; distinct instances are independent.</para>
/// </remarks>
public sealed unsafe partial class PeripheralObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public PeripheralObject(Services services = null)
      : base(ObjectHandle.Create("PeripheralObject", services)) {}

  /// <summary>Sends a text to a device; 0, or the error number.</summary>
  /// <param name="iControl">Opens port <c>iPort</c> of <c>iControl</c> with the line settings
  /// <c>Setting</c>, writes <c>iCode</c> as it is and closes the port.</param>
  /// <param name="iCode">Opens port <c>iPort</c> of <c>iControl</c> with the line settings
  /// <c>Setting</c>, writes <c>iCode</c> as it is and closes the port.</param>
  /// <param name="iPort">Opens port <c>iPort</c> of <c>iControl</c> with the line settings
  /// <c>Setting</c>, writes <c>iCode</c> as it is and closes the port.</param>
  /// <param name="Setting">Opens port <c>iPort</c> of <c>iControl</c> with the line settings
  /// <c>Setting</c>, writes <c>iCode</c> as it is and closes the port.</param>
  /// <returns>For example, <c>SendCommMsg(SerialPort, "READY", 99)</c> returns
  /// <c>8002</c>.</returns>
  /// <remarks>
  /// <para>Opens port <c>iPort</c> of <c>iControl</c> with the line settings <c>Setting</c>, writes
  /// <c>iCode</c> as it is and closes the port. Returns 0, or the error number of the first step
  /// that failed: the low 16 bits of the control's own number, or 440 if those are 0 or the control
  /// raised something without a number; 91 without a control. Never raises.</para>
  /// <para>The steps after the failed one are skipped: a port that could not be written to stays
  /// open, for the host to close.</para>
  /// </remarks>
  public short SendCommMsg(SerialPort iControl, string iCode, short iPort,
      string Setting = "9600,N,8,1") {
    fixed (char* text1_ = iCode, text3_ = Setting) {
      Value* values_ = stackalloc Value[4];
      values_[0].Set(iControl);
      values_[1].Set(text1_, iCode);
      values_[2].Set(iPort);
      values_[3].Set(text3_, Setting);
      Value result_ = Handle.Invoke(1, values_, Setting != "9600,N,8,1" ? 4 : 3);
      GC.KeepAlive(iControl);
      return result_.TakeInteger();
    }
  }

  /// <summary>Opens a cash drawer; always 1.</summary>
  /// <param name="iControl"></param>
  /// <param name="iCode">Sends its kick code <c>iCode</c> with the settings "9600,N,8,1".</param>
  /// <param name="iPort"></param>
  /// <returns>For example, <c>OpenDraw(SerialPort, "\u001bp0", 99)</c> returns <c>1</c>.</returns>
  /// <remarks>
  /// <para>Sends its kick code <c>iCode</c> with the settings "9600,N,8,1". Callers have come to
  /// rely on the 1. A failure is shown only in a message box: "Error! : ", the number of
  /// <c>SendCommMsg</c>, and on the next line the text of the control.</para>
  /// </remarks>
  public short OpenDraw(SerialPort iControl, string iCode, short iPort) {
    fixed (char* text1_ = iCode) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(iControl);
      values_[1].Set(text1_, iCode);
      values_[2].Set(iPort);
      Value result_ = Handle.Invoke(2, values_, 3);
      GC.KeepAlive(iControl);
      return result_.TakeInteger();
    }
  }
}

/// <summary>Printers, papers and printed pages.</summary>
/// <remarks>
/// <para>Chooses the printer and its paper, names papers and bins, and prints one-page documents,
/// with positions in millimetres from the top left corner.</para>
/// <para>Made with a host's printers, the object asks for the current one and remembers its name.
/// The machine's own, which belong to the object alone, are asked when first needed: neither making
/// an object nor the names of papers ask a print server. Operations that say so first make the
/// remembered printer current: if the current one has another name, ignoring case, the last
/// installed printer of that name, if there is one.</para>
/// <para>A printer's failure raises 482 with what the print system said, unless an operation says
/// otherwise; a <c>RunTimeError</c> of a host's own printer keeps its number. An instance belongs
/// to one thread at a time; distinct instances are independent unless they are given the same
/// printers.</para>
/// </remarks>
public sealed unsafe partial class PrintObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public PrintObject(Services services = null)
      : base(ObjectHandle.Create("PrintObject", services)) {}

  /// <summary>Remembers a printer and its paper; always 1.</summary>
  /// <returns>For example, <c>SelectPrinter("PDF", 1, 9, 7)</c> returns <c>1</c>.</returns>
  /// <remarks>
  /// <para>The same as <c>SelectPrinter2</c> with a quality of 0.</para>
  /// </remarks>
  public short SelectPrinter(string DeviceName, short Orientation, short PaperSize, short PaperBin) {
    fixed (char* text0_ = DeviceName) {
      Value* values_ = stackalloc Value[4];
      values_[0].Set(text0_, DeviceName);
      values_[1].Set(Orientation);
      values_[2].Set(PaperSize);
      values_[3].Set(PaperBin);
      return Handle.Invoke(1, values_, 4).TakeInteger();
    }
  }

  /// <summary>Remembers a printer, its paper and its quality; always 1.</summary>
  /// <returns>For example, <c>SelectPrinter2("PDF", 1, 9, 7, -4)</c> returns <c>1</c>.</returns>
  /// <remarks>
  /// <para>Only the name has an effect, on the operations that make the remembered printer current;
  /// nothing is sent to a printer, and the name need not be that of an installed one.</para>
  /// </remarks>
  public short SelectPrinter2(string DeviceName, short Orientation, short PaperSize,
      short PaperBin, short PrintQuality) {
    fixed (char* text0_ = DeviceName) {
      Value* values_ = stackalloc Value[5];
      values_[0].Set(text0_, DeviceName);
      values_[1].Set(Orientation);
      values_[2].Set(PaperSize);
      values_[3].Set(PaperBin);
      values_[4].Set(PrintQuality);
      return Handle.Invoke(2, values_, 5).TakeInteger();
    }
  }

  /// <summary>Sets the paper and returns the one in force.</summary>
  /// <param name="StartSize">Makes the remembered printer current and sets its paper to
  /// <c>StartSize</c>. A <c>StartSize</c> below 1 leaves the printer's own paper; so does one of
  /// 256 (user-defined) or more if the environment variable "OS" is Windows_NT.</param>
  /// <returns>For example, <c>CheckPaperSize(11)</c> returns <c>11</c>.</returns>
  /// <remarks>
  /// <para>Makes the remembered printer current and sets its paper to <c>StartSize</c>. A
  /// <c>StartSize</c> below 1 leaves the printer's own paper; so does one of 256 (user-defined) or
  /// more if the environment variable "OS" is Windows_NT.</para>
  /// <para>Never raises: returns a paper that the printer refuses as if it were in force, and 0 if
  /// the printer cannot be asked at all.</para>
  /// </remarks>
  public short CheckPaperSize(short StartSize = 0) {
    var value_ = new Value();
    value_.Set(StartSize);
    return Handle.Invoke(3, &value_, StartSize != 0 ? 1 : 0).TakeInteger();
  }

  /// <summary>Sets the bin and returns the one in force.</summary>
  /// <param name="StartBin">A <c>StartBin</c> below 1, or of 7 (the default bin), leaves the
  /// printer's own.</param>
  /// <returns>For example, <c>CheckPaperBin(1)</c> returns <c>1</c>.</returns>
  /// <remarks>
  /// <para>Otherwise as <c>CheckPaperSize</c>. A <c>StartBin</c> below 1, or of 7 (the default
  /// bin), leaves the printer's own.</para>
  /// </remarks>
  public short CheckPaperBin(short StartBin = 0) {
    var value_ = new Value();
    value_.Set(StartBin);
    return Handle.Invoke(4, &value_, StartBin != 0 ? 1 : 0).TakeInteger();
  }

  /// <summary>The name of a paper.</summary>
  /// <returns>For example, <c>GETPaperSizeText(9)</c> returns <c>"A4, 210 x 297 mm"</c>.</returns>
  /// <remarks>
  /// <para>"A4, 210 x 297 mm" for 9, "Custom Size: ( 300 )" for a code that has no name. Hosts
  /// compare and store these texts, so none ever changes: 2 is "+A611Letter Small, 8 1/2 x 11
  /// in".</para>
  /// </remarks>
  public string GETPaperSizeText(short PaperSize) {
    var value_ = new Value();
    value_.Set(PaperSize);
    return Handle.InvokeText(5, &value_, 1);
  }

  /// <summary>The name of a bin.</summary>
  /// <returns>For example, <c>GETPaperBinText(1)</c> returns <c>"Upper Bin"</c>.</returns>
  /// <remarks>
  /// <para>"Upper Bin" for 1, "Custom Bin: ( 12 )" for a code that has no name.</para>
  /// </remarks>
  public string GETPaperBinText(short PaperBin) {
    var value_ = new Value();
    value_.Set(PaperBin);
    return Handle.InvokeText(6, &value_, 1);
  }

  /// <summary>"Landscape" or "Portrait".</summary>
  /// <returns>For example, <c>GETPaperOrientationText(2)</c> returns <c>"Landscape"</c>.</returns>
  /// <remarks>
  /// <para>"Landscape" for 2, "Portrait" for any other value.</para>
  /// </remarks>
  public string GETPaperOrientationText(short Orientation) {
    var value_ = new Value();
    value_.Set(Orientation);
    return Handle.InvokeText(7, &value_, 1);
  }

  /// <summary>Makes the printer use millimetres, and moves to 1, 1.</summary>
  /// <returns>For example, <c>PrintStart()</c> returns <c>0</c>.</returns>
  /// <remarks>
  /// <para>The printer is the current one. Returns 0.</para>
  /// </remarks>
  public short PrintStart() => Handle.Invoke(8, null, 0).TakeInteger();

  /// <summary>Prints a line in the Thai font.</summary>
  /// <param name="Row">The names are swapped: <c>Row</c> is the distance from the left edge,
  /// <c>Col</c> that from the top.</param>
  /// <param name="Col">The names are swapped: <c>Row</c> is the distance from the left edge,
  /// <c>Col</c> that from the top.</param>
  /// <param name="FSize"><c>FSize</c> has no effect.</param>
  /// <param name="message">Prints <c>message</c> on the current printer in BrowalliaUPC, 10 points,
  /// not bold.</param>
  /// <returns>For example, <c>PrintSet(20, 30, 10, "สวัสดี")</c> returns <c>0</c>.</returns>
  /// <remarks>
  /// <para>Prints <c>message</c> on the current printer in BrowalliaUPC, 10 points, not bold. The
  /// names are swapped: <c>Row</c> is the distance from the left edge, <c>Col</c> that from the
  /// top. <c>FSize</c> has no effect. Steps that fail are skipped. Returns 0.</para>
  /// </remarks>
  public short PrintSet(float Row, float Col, byte FSize, string message) {
    fixed (char* text3_ = message) {
      Value* values_ = stackalloc Value[4];
      values_[0].Set(Row);
      values_[1].Set(Col);
      values_[2].Set(FSize);
      values_[3].Set(text3_, message);
      return Handle.Invoke(9, values_, 4).TakeInteger();
    }
  }

  /// <summary>Prints a line of text, aligned to a place.</summary>
  /// <param name="sMsg"></param>
  /// <param name="x">The text is placed at <c>x</c>, <c>y</c>, where -1 is the printer's position
  /// rounded, halves to even; with <c>MoveLine</c> 0 it is at the height of the last text or
  /// picture instead. <c>x</c> is where it starts; for an <c>Alignment</c> of 1 its centre, its
  /// start being rounded the same way, and for 2 its end.</param>
  /// <param name="y">The text is placed at <c>x</c>, <c>y</c>, where -1 is the printer's position
  /// rounded, halves to even; with <c>MoveLine</c> 0 it is at the height of the last text or
  /// picture instead.</param>
  /// <param name="MoveLine">The text is placed at <c>x</c>, <c>y</c>, where -1 is the printer's
  /// position rounded, halves to even; with <c>MoveLine</c> 0 it is at the height of the last text
  /// or picture instead.</param>
  /// <param name="Alignment"><c>x</c> is where it starts; for an <c>Alignment</c> of 1 its centre,
  /// its start being rounded the same way, and for 2 its end.</param>
  /// <param name="MaxLenText">A <c>MaxLenText</c> above 0 drops characters (a surrogate pair is
  /// one) from the end until the text is no wider than that, measured in the font of the call
  /// before, as the font is set after that.</param>
  /// <param name="FontName">An empty <c>FontName</c> and a <c>FontSize</c> of 0 leave those as they
  /// are; bold and italic are always set.</param>
  /// <param name="FontSize">An empty <c>FontName</c> and a <c>FontSize</c> of 0 leave those as they
  /// are; bold and italic are always set.</param>
  /// <param name="FontBold"></param>
  /// <param name="FontItalic"></param>
  /// <returns>For example, <c>PrintGraphicText("ใบเสร็จ", 105, 20, 1, 1)</c> returns
  /// <c>0</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 for a position that 32 bits cannot
  /// hold.</exception>
  /// <remarks>
  /// <para>The printer is the remembered one, made current.</para>
  /// <para>The text is placed at <c>x</c>, <c>y</c>, where -1 is the printer's position rounded,
  /// halves to even; with <c>MoveLine</c> 0 it is at the height of the last text or picture
  /// instead. <c>x</c> is where it starts; for an <c>Alignment</c> of 1 its centre, its start being
  /// rounded the same way, and for 2 its end.</para>
  /// <para>A <c>MaxLenText</c> above 0 drops characters (a surrogate pair is one) from the end
  /// until the text is no wider than that, measured in the font of the call before, as the font is
  /// set after that. An empty <c>FontName</c> and a <c>FontSize</c> of 0 leave those as they are;
  /// bold and italic are always set.</para>
  /// <para>Returns 0. Raises 6 for a position that 32 bits cannot hold.</para>
  /// </remarks>
  public short PrintGraphicText(string sMsg, int x = -1, int y = -1, int MoveLine = 1,
      int Alignment = 0, double MaxLenText = 0, string FontName = "", double FontSize = 0,
      bool FontBold = false, bool FontItalic = false) {
    fixed (char* text0_ = sMsg, text6_ = FontName) {
      Value* values_ = stackalloc Value[10];
      values_[0].Set(text0_, sMsg);
      values_[1].Set(x);
      values_[2].Set(y);
      values_[3].Set(MoveLine);
      values_[4].Set(Alignment);
      values_[5].Set(MaxLenText);
      values_[6].Set(text6_, FontName);
      values_[7].Set(FontSize);
      values_[8].Set(FontBold);
      values_[9].Set(FontItalic);
      return Handle.Invoke(10, values_, FontItalic ? 10 : FontBold ? 9 : FontSize != 0 ? 8 :
          (FontName == null || FontName.Length > 0) ? 7 : MaxLenText != 0 ? 6 : Alignment != 0 ? 5 :
          MoveLine != 1 ? 4 : y != -1 ? 3 : x != -1 ? 2 : 1).TakeInteger();
    }
  }

  /// <summary>Draws a picture.</summary>
  /// <param name="Src"></param>
  /// <param name="x">The printer is the remembered one, made current, and moves to the picture's
  /// top left corner: <c>x</c>, <c>y</c>, which count as in <c>PrintGraphicText</c>.</param>
  /// <param name="y">The printer is the remembered one, made current, and moves to the picture's
  /// top left corner: <c>x</c>, <c>y</c>, which count as in <c>PrintGraphicText</c>.</param>
  /// <param name="W">A <c>W</c> or <c>H</c> of 0 is the picture's own.</param>
  /// <param name="H">A <c>W</c> or <c>H</c> of 0 is the picture's own.</param>
  /// <param name="MoveLine"></param>
  /// <exception cref="RunTimeException">Raises 5 without a picture, 6 as <c>PrintGraphicText</c>
  /// does.</exception>
  /// <remarks>
  /// <para>The printer is the remembered one, made current, and moves to the picture's top left
  /// corner: <c>x</c>, <c>y</c>, which count as in <c>PrintGraphicText</c>. A <c>W</c> or <c>H</c>
  /// of 0 is the picture's own. Returns 0. Raises 5 without a picture, 6 as <c>PrintGraphicText</c>
  /// does.</para>
  /// </remarks>
  public short PrintGraphicObject(PrintPicture Src, int x = -1, int y = -1, float W = 0f,
      float H = 0f, int MoveLine = 1) {
    Value* values_ = stackalloc Value[6];
    values_[0].Set(Src);
    values_[1].Set(x);
    values_[2].Set(y);
    values_[3].Set(W);
    values_[4].Set(H);
    values_[5].Set(MoveLine);
    Value result_ = Handle.Invoke(11, values_, MoveLine != 1 ? 6 : H != 0f ? 5 : W != 0f ? 4 : y !=
        -1 ? 3 : x != -1 ? 2 : 1);
    GC.KeepAlive(Src);
    return result_.TakeInteger();
  }

  /// <summary>Ends the document, which is then printed.</summary>
  /// <returns>For example, <c>PrintStart(); PrintGraphicText("ใบเสร็จ", 105, 20, 1, 1);
  /// PrintOut()</c> returns <c>0</c>.</returns>
  /// <remarks>
  /// <para>The document is the current printer's. Returns 0. After a failure the document is lost;
  /// the next one is not affected.</para>
  /// </remarks>
  public short PrintOut() => Handle.Invoke(12, null, 0).TakeInteger();

  /// <summary>Discards the document.</summary>
  /// <returns>For example, <c>PrintStart(); PrintGraphicText("ใบเสร็จ", 105, 20, 1, 1);
  /// PrintCancel()</c> returns <c>0</c>.</returns>
  /// <remarks>
  /// <para>The document is the current printer's. Returns 0.</para>
  /// </remarks>
  public short PrintCancel() => Handle.Invoke(13, null, 0).TakeInteger();
}

/// <summary>Registry values, and a password cipher for texts kept there.</summary>
/// <remarks>
/// <para>The values are numbers and texts. An instance and its copies, which share its registry,
/// belong to one thread at a time; distinct instances are independent.</para>
/// </remarks>
public sealed unsafe partial class RegistryObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public RegistryObject(Services services = null)
      : base(ObjectHandle.Create("RegistryObject", services)) {}

  /// <summary>The number that a value holds; 0 if there is none.</summary>
  /// <returns>For example, <c>UpdateKeyValueLong(HKEY_CURRENT_USER, "Software\\Shop", "LastNumber",
  /// 42); GetKeyValueLong(HKEY_CURRENT_USER, "Software\\Shop", "LastNumber")</c> returns
  /// <c>42</c>.</returns>
  /// <remarks>
  /// <para>Also 0 for a value that holds anything but a number, even a text of digits. A key that
  /// the user may read but not write counts as missing.</para>
  /// </remarks>
  public int GetKeyValueLong(KetRootType keyroot, string keyname, string subkeyname) {
    fixed (char* text1_ = keyname, text2_ = subkeyname) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set((int)keyroot);
      values_[1].Set(text1_, keyname);
      values_[2].Set(text2_, subkeyname);
      return Handle.Invoke(1, values_, 3).TakeLong();
    }
  }

  /// <summary>The text that a value holds; empty if there is none.</summary>
  /// <returns>For example, <c>UpdateKeyValueString(HKEY_CURRENT_USER, "Software\\Shop", "Branch",
  /// "สาขา 1"); GetKeyValueString(HKEY_CURRENT_USER, "Software\\Shop", "Branch")</c> returns
  /// <c>"สาขา 1"</c>.</returns>
  /// <remarks>
  /// <para>One character 0 at its end is left out. Also empty for a text of more than 1,024 bytes,
  /// and for a value that holds anything but a plain text. A key that the user may read but not
  /// write counts as missing.</para>
  /// </remarks>
  public string GetKeyValueString(KetRootType keyroot, string keyname, string subkeyname) {
    fixed (char* text1_ = keyname, text2_ = subkeyname) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set((int)keyroot);
      values_[1].Set(text1_, keyname);
      values_[2].Set(text2_, subkeyname);
      return Handle.InvokeText(2, values_, 3);
    }
  }

  /// <summary>Sets a value to a number; True if that FAILED.</summary>
  /// <returns>For example, <c>UpdateKeyValueLong(HKEY_CURRENT_USER, "Software\\Shop", "LastNumber",
  /// 42)</c> returns <c>False</c>.</returns>
  /// <remarks>
  /// <para>Creates the key and those above it if they do not exist. False (0) means that it was
  /// done, true (-1) that it FAILED: callers test for 0.</para>
  /// </remarks>
  public bool UpdateKeyValueLong(KetRootType keyroot, string keyname, string subkeyname,
      int keyval) {
    fixed (char* text1_ = keyname, text2_ = subkeyname) {
      Value* values_ = stackalloc Value[4];
      values_[0].Set((int)keyroot);
      values_[1].Set(text1_, keyname);
      values_[2].Set(text2_, subkeyname);
      values_[3].Set(keyval);
      return Handle.Invoke(3, values_, 4).TakeBoolean();
    }
  }

  /// <summary>Sets a value to a text; True if that FAILED.</summary>
  /// <returns>For example, <c>UpdateKeyValueString(HKEY_CURRENT_USER, "Software\\Shop", "Branch",
  /// "สาขา 1")</c> returns <c>False</c>.</returns>
  /// <remarks>
  /// <para>Otherwise as <c>UpdateKeyValueLong</c>. The text is stored in Windows-874 with one byte
  /// for each character and no final zero. A text of more than 1,024 characters is stored, but
  /// <c>GetKeyValueString</c> does not read it.</para>
  /// </remarks>
  public bool UpdateKeyValueString(KetRootType keyroot, string keyname, string subkeyname,
      string keyval) {
    fixed (char* text1_ = keyname, text2_ = subkeyname, text3_ = keyval) {
      Value* values_ = stackalloc Value[4];
      values_[0].Set((int)keyroot);
      values_[1].Set(text1_, keyname);
      values_[2].Set(text2_, subkeyname);
      values_[3].Set(text3_, keyval);
      return Handle.Invoke(4, values_, 4).TakeBoolean();
    }
  }

  /// <summary>Hides a text from a glance, under a password.</summary>
  /// <returns>For example, <c>Encrypt("abc", "K")</c> returns <c>"*)("</c>.</returns>
  /// <exception cref="RunTimeException">Raises 11 for an empty password, unless the text is
  /// empty.</exception>
  /// <remarks>
  /// <para>The same as <c>StandardObject.EncryptBS</c>, for a text of any length. Raises 11 for an
  /// empty password, unless the text is empty.</para>
  /// </remarks>
  public string Encrypt(string StringInput, string PassWord) {
    fixed (char* text0_ = StringInput, text1_ = PassWord) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, StringInput);
      values_[1].Set(text1_, PassWord);
      return Handle.InvokeText(5, values_, 2);
    }
  }

  /// <summary>Undoes <c>Encrypt</c>.</summary>
  /// <returns>For example, <c>Decrypt("*)(", "K")</c> returns <c>"abc"</c>.</returns>
  /// <remarks>
  /// <para>The same as <c>Encrypt</c>, which undoes itself.</para>
  /// </remarks>
  public string Decrypt(string EncryptedTextInput, string PassWord) {
    fixed (char* text0_ = EncryptedTextInput, text1_ = PassWord) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, EncryptedTextInput);
      values_[1].Set(text1_, PassWord);
      return Handle.InvokeText(6, values_, 2);
    }
  }
}

/// <summary>Dates, payment terms, numbers, lists, keys, bar codes, ciphers and digests.</summary>
/// <remarks>
/// <para>Every operation runs to its end on the caller's thread and keeps nothing for the next one.
/// The system's date convention is read anew on each call. An instance belongs to one thread at a
/// time; distinct instances are independent.</para>
/// <para>"The system's era" is Buddhist if the system reads a typed year as a Buddhist Era year,
/// otherwise Gregorian. The library never shifts a year twice: a date whose own year is 2400 or
/// more is taken to carry a Buddhist year already.</para>
/// </remarks>
public sealed unsafe partial class StandardObject : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public StandardObject(Services services = null)
      : base(ObjectHandle.Create("StandardObject", services)) {}

  /// <summary>The system's year minus the Gregorian year: 543 or 0.</summary>
  /// <returns>For example, <c>GetEraDif()</c> returns <c>543</c>.</returns>
  /// <remarks>
  /// <para>543 if years are read in the Buddhist Era, else 0.</para>
  /// </remarks>
  public short GetEraDif() => Handle.Invoke(1, null, 0).TakeInteger();

  /// <summary>The current year in the system's era.</summary>
  /// <returns>For example, <c>CTYEAR()</c> returns <c>2567</c>.</returns>
  /// <remarks>
  /// <para>For example 2567 or 2024.</para>
  /// </remarks>
  public short CTYEAR() => Handle.Invoke(2, null, 0).TakeInteger();

  /// <summary>The year of a date in the system's era.</summary>
  /// <returns>For example, <c>Year2000(2024-01-15)</c> returns <c>2567</c>.</returns>
  /// <remarks>
  /// <para>A year of 2400 or more, such as that of a blank date (3333, 8888), is Buddhist already
  /// and is returned unchanged. For 2247 and 1704, which are 3333 shifted down by two and three
  /// eras, it is 3333.</para>
  /// </remarks>
  public short Year2000(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.Invoke(3, &value_, 1).TakeInteger();
  }

  /// <summary>The code of the system's date layout, 1 to 4.</summary>
  /// <returns>For example, <c>GetDateFormat()</c> returns <c>4</c>.</returns>
  /// <remarks>
  /// <para>1 is m/d/yyyy, 2 d/m/yyyy; 3 and 4 are the same with Buddhist years.</para>
  /// </remarks>
  public short GetDateFormat() => Handle.Invoke(4, null, 0).TakeInteger();

  /// <summary>The date layout of a code, "m/d/yyyy" or "d/m/yyyy".</summary>
  /// <returns>For example, <c>GetDateFormatString(4)</c> returns <c>"d/m/yyyy"</c>.</returns>
  /// <remarks>
  /// <para>"m/d/yyyy" for the codes 1 and 3, "d/m/yyyy" for 2 and 4, else empty.</para>
  /// </remarks>
  public string GetDateFormatString(short DateFormat) {
    var value_ = new Value();
    value_.Set(DateFormat);
    return Handle.InvokeText(5, &value_, 1);
  }

  /// <summary>The date that stands for no date, 3333-03-03.</summary>
  /// <returns>For example, <c>GETBlankDate()</c> returns <c>3333-03-03</c>.</returns>
  public DateTime GETBlankDate() => Handle.Invoke(6, null, 0).TakeDate();

  /// <summary>The largest date, 3333-03-03.</summary>
  /// <returns>For example, <c>GETMAXDate()</c> returns <c>3333-03-03</c>.</returns>
  /// <remarks>
  /// <para>It is deliberately the blank date's value.</para>
  /// </remarks>
  public DateTime GETMAXDate() => Handle.Invoke(7, null, 0).TakeDate();

  /// <summary>Whether a date stands for no date.</summary>
  /// <param name="iDate">With any other time of day <c>iDate</c> is an ordinary date.</param>
  /// <returns>For example, <c>isBlankDate(3333-03-03)</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para>The blank dates are the zero date and midnight of 3333-03-03, of 8888-08-08 and of the
  /// dates that one era conversion too many makes of them (3876-03-03, 2790-03-03, 8345-08-08).
  /// With any other time of day <c>iDate</c> is an ordinary date.</para>
  /// </remarks>
  public bool isBlankDate(DateTime iDate) {
    var value_ = new Value();
    value_.Set(iDate);
    return Handle.Invoke(8, &value_, 1).TakeBoolean();
  }

  /// <summary>The same day at 00:00.</summary>
  /// <returns>For example, <c>TrimDate(2024-01-15 09:30:00)</c> returns
  /// <c>2024-01-15</c>.</returns>
  public DateTime TrimDate(DateTime iDate) {
    var value_ = new Value();
    value_.Set(iDate);
    return Handle.Invoke(9, &value_, 1).TakeDate();
  }

  /// <summary>Reads "D:H:M" as a number of days.</summary>
  /// <returns>For example, <c>DAYTIME2DAY("1:12:00")</c> returns <c>1.5</c>.</returns>
  /// <remarks>
  /// <para>"H:M" and a bare number of days are read too. Fields are rounded to whole numbers,
  /// halves to even; minutes above 60 count as 60, hours above 24 as 24, so "0:23:60" is one day. A
  /// field that is not a number reads as 0; fields further left are ignored. "0130" is 130 days
  /// (docs/surprises.md).</para>
  /// </remarks>
  public double DAYTIME2DAY(string iDDHHMMText) {
    fixed (char* text0_ = iDDHHMMText) {
      var value_ = new Value();
      value_.Set(text0_, iDDHHMMText);
      return Handle.Invoke(10, &value_, 1).TakeDouble();
    }
  }

  /// <summary>Writes a number of days as "D:HH:MM".</summary>
  /// <param name="iDay">Raises 6 if <c>iDay</c> is infinite or NaN.</param>
  /// <returns>For example, <c>DAY2DAYTIME(1.5)</c> returns <c>"1:12:00"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 if <c>iDay</c> is infinite or NaN.</exception>
  /// <remarks>
  /// <para>The sign is dropped: 1.5 and -1.5 are "1:12:00", 0 is "0:00:00". Rounded to the
  /// millisecond, then cut to the minute. Raises 6 if <c>iDay</c> is infinite or NaN.</para>
  /// </remarks>
  public string DAY2DAYTIME(double iDay) {
    var value_ = new Value();
    value_.Set(iDay);
    return Handle.InvokeText(11, &value_, 1);
  }

  /// <summary>Writes a number of hours as "H:MM".</summary>
  /// <returns>For example, <c>FormatHour(7.5)</c> returns <c>"7:30"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 from 1E+15 hours on and for infinities and
  /// NaN.</exception>
  /// <remarks>
  /// <para>Rounded to the minute, halves away from zero, from the number of minutes as it prints
  /// (to 15 significant digits): 7.5 is "7:30", 2.675 "2:41", -1.5 "-1:30", -0.001 "0:00".
  /// <c>CTHour</c> reads it back. Raises 6 from 1E+15 hours on and for infinities and NaN.</para>
  /// </remarks>
  public string FormatHour(double iHour) {
    var value_ = new Value();
    value_.Set(iHour);
    return Handle.InvokeText(12, &value_, 1);
  }

  /// <summary>Whether a "D:H:M" text amounts to anything but zero.</summary>
  /// <param name="IDayTimeText"></param>
  /// <param name="AcceptZeroValue">Four characters "HHMM" count too; with <c>AcceptZeroValue</c>
  /// the result is always True.</param>
  /// <returns>For example, <c>isDayTime("0:8:30")</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para>Four characters "HHMM" count too; with <c>AcceptZeroValue</c> the result is always True.
  /// The ranges of hours and minutes are not checked, and a bare number counts only if it has four
  /// characters. <c>DAYTIME2DAY</c> does not read "HHMM" (docs/surprises.md).</para>
  /// </remarks>
  public bool isDayTime(string IDayTimeText, bool AcceptZeroValue = false) {
    fixed (char* text0_ = IDayTimeText) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, IDayTimeText);
      values_[1].Set(AcceptZeroValue);
      return Handle.Invoke(13, values_, AcceptZeroValue ? 2 : 1).TakeBoolean();
    }
  }

  /// <summary>Reads a date as a user types it in a date box.</summary>
  /// <returns>For example, <c>CTDATE("15/1/2567")</c> returns <c>2024-01-15</c>.</returns>
  /// <exception cref="RunTimeException">Raises 13 for a month outside 1 to 12 or a day that the
  /// month does not have, 9 for a single field, 6 for a field beyond 16 bits.</exception>
  /// <remarks>
  /// <para>"15/1/2567" is read in the system's field order and era; a year of one or two digits is
  /// completed (Gregorian 00-29 to 2000-2029, 30-99 to 1930-1999; Buddhist 00-72 to 2500-2572,
  /// 73-99 to 2473-2499). The order is never guessed: "1/15/2567" fails on a day-first
  /// system.</para>
  /// <para>The empty text is the zero date, and a missing year is year 0. Raises 13 for a month
  /// outside 1 to 12 or a day that the month does not have, 9 for a single field, 6 for a field
  /// beyond 16 bits. The flag is ignored: it stays for callers of the older two-argument form.
  /// docs/surprises.md says what to check first.</para>
  /// </remarks>
  public DateTime CTDATE(string iText, bool NoUsedBackwardSupportOnly = false) {
    fixed (char* text0_ = iText) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, iText);
      values_[1].Set(NoUsedBackwardSupportOnly);
      return Handle.Invoke(14, values_, NoUsedBackwardSupportOnly ? 2 : 1).TakeDate();
    }
  }

  /// <summary>Whether a text is a date with a year of four digits.</summary>
  /// <param name="iText"><c>iText</c> has exactly three fields separated by "/", in the system's
  /// field order and era; the year has four characters and is from 643 to 9999.</param>
  /// <param name="NoUsedBackwardSupportOnly"></param>
  /// <returns>For example, <c>IsTDate("15/1/2567")</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para><c>iText</c> has exactly three fields separated by "/", in the system's field order and
  /// era; the year has four characters and is from 643 to 9999. Signs are dropped ("-15/1/2567" is
  /// a date), so <c>CTDATE</c> may fail on a text accepted here (docs/surprises.md). The flag is
  /// ignored.</para>
  /// </remarks>
  public bool IsTDate(string iText, bool NoUsedBackwardSupportOnly = false) {
    fixed (char* text0_ = iText) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, iText);
      values_[1].Set(NoUsedBackwardSupportOnly);
      return Handle.Invoke(15, values_, NoUsedBackwardSupportOnly ? 2 : 1).TakeBoolean();
    }
  }

  /// <summary>Reads any date and adds the era difference to its year.</summary>
  /// <returns>For example, <c>CDATE2000("15/1/2567")</c> returns <c>2567-01-15</c>.</returns>
  /// <remarks>
  /// <para>Any date that <c>IsTDateTime</c> recognises is read. On a Buddhist system the result
  /// carries the Buddhist year as its own (29 February becomes the 28th if that year has none;
  /// docs/surprises.md). Returns the blank date for other text and for a year outside the range of
  /// dates.</para>
  /// </remarks>
  public DateTime CDATE2000(string iText) {
    fixed (char* text0_ = iText) {
      var value_ = new Value();
      value_.Set(text0_, iText);
      return Handle.Invoke(16, &value_, 1).TakeDate();
    }
  }

  /// <summary>Reads a date; today if the text is not one.</summary>
  /// <returns>For example, <c>GETValidDate("15/3/2556")</c> returns <c>2013-03-15</c>.</returns>
  /// <remarks>
  /// <para><c>CTDATE</c> of a text that <c>IsTDateTime</c> recognises; today's date for any other,
  /// and if <c>CTDATE</c> would fail, as it does for a date without "/" (docs/surprises.md).</para>
  /// </remarks>
  public DateTime GETValidDate(string DateString) {
    fixed (char* text0_ = DateString) {
      var value_ = new Value();
      value_.Set(text0_, DateString);
      return Handle.Invoke(17, &value_, 1).TakeDate();
    }
  }

  /// <summary>Whether a text is a date, a time or both.</summary>
  /// <returns>For example, <c>IsTDateTime("15 ม.ค. 2567 9:30")</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para>For example "15/1/2567 9:30", "January 15, 2013", "15 ม.ค. 2567" and "9:30 PM".
  /// docs/dates.md lists the forms that are read.</para>
  /// </remarks>
  public bool IsTDateTime(string iText) {
    fixed (char* text0_ = iText) {
      var value_ = new Value();
      value_.Set(text0_, iText);
      return Handle.Invoke(18, &value_, 1).TakeBoolean();
    }
  }

  /// <summary>Whether a text is a month and a year, "MM/YYYY".</summary>
  /// <param name="inMMYYYY"><c>inMMYYYY</c> is a two-digit month, any one character and a year from
  /// 643 in the last four: "01/2567".</param>
  /// <returns>For example, <c>isMounthYear("01/2567")</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para><c>inMMYYYY</c> is a two-digit month, any one character and a year from 643 in the last
  /// four: "01/2567". The year has no upper bound.</para>
  /// </remarks>
  public bool isMounthYear(string inMMYYYY) {
    fixed (char* text0_ = inMMYYYY) {
      var value_ = new Value();
      value_.Set(text0_, inMMYYYY);
      return Handle.Invoke(19, &value_, 1).TakeBoolean();
    }
  }

  /// <summary>Reads the date in a sortable key, year first.</summary>
  /// <returns>For example, <c>GETDateFromTextYYYYMMDD("2567-01-15")</c> returns
  /// <c>2024-01-15</c>.</returns>
  /// <remarks>
  /// <para>Such as "2024-01-15" or "25670115"; a Buddhist year becomes Gregorian. If the text
  /// cannot be read, returns 3 March of the year 2000, or of 543 on a Buddhist system, which
  /// callers test for.</para>
  /// <para>A text that the system recognises as it stands is read in the system's era, so on a
  /// Buddhist system "2024-01-15" is the Buddhist year 2024. An eight-digit key must be a date when
  /// read that way too, so "20240229" is not a date there (the Buddhist year 2024 has no 29
  /// February).</para>
  /// </remarks>
  public DateTime GETDateFromTextYYYYMMDD(string iDateYYYY_MM_DD) {
    fixed (char* text0_ = iDateYYYY_MM_DD) {
      var value_ = new Value();
      value_.Set(text0_, iDateYYYY_MM_DD);
      return Handle.Invoke(20, &value_, 1).TakeDate();
    }
  }

  /// <summary>The first day of a month typed year first.</summary>
  /// <returns>For example, <c>CTPeriod("2567/03")</c> returns <c>2024-03-01</c>.</returns>
  /// <remarks>
  /// <para>The year is in the system's era: "2567/03". The first day of the current month if the
  /// month is not 1 to 12 or the Gregorian year not 1 to 3332. Years 0 to 99 are completed to
  /// 1930-2029.</para>
  /// </remarks>
  public DateTime CTPeriod(string iText) {
    fixed (char* text0_ = iText) {
      var value_ = new Value();
      value_.Set(text0_, iText);
      return Handle.Invoke(21, &value_, 1).TakeDate();
    }
  }

  /// <summary>Whether <c>CTPeriod</c> reads a text as it stands.</summary>
  /// <returns>For example, <c>IsTPeriod("2567/03")</c> returns <c>True</c>.</returns>
  public bool IsTPeriod(string iText) {
    fixed (char* text0_ = iText) {
      var value_ = new Value();
      value_.Set(text0_, iText);
      return Handle.Invoke(22, &value_, 1).TakeBoolean();
    }
  }

  /// <summary>The time of day of four digits "HHMM".</summary>
  /// <returns>For example, <c>CTTime("0600")</c> returns <c>1899-12-30 06:00:00</c>.</returns>
  /// <remarks>
  /// <para>The result is on day 0. For any other text, "9:30" and "2400" included, it is 00:00, a
  /// blank date (docs/surprises.md).</para>
  /// </remarks>
  public DateTime CTTime(string ITimeText) {
    fixed (char* text0_ = ITimeText) {
      var value_ = new Value();
      value_.Set(text0_, ITimeText);
      return Handle.Invoke(23, &value_, 1).TakeDate();
    }
  }

  /// <summary>Whether a text is four digits "HHMM".</summary>
  /// <returns>For example, <c>isTTime("2359")</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para>From "0000" to "2359".</para>
  /// </remarks>
  public bool isTTime(string ITimeText) {
    fixed (char* text0_ = ITimeText) {
      var value_ = new Value();
      value_.Set(text0_, ITimeText);
      return Handle.Invoke(24, &value_, 1).TakeBoolean();
    }
  }

  /// <summary>The day that a clock time past midnight carries over to.</summary>
  /// <param name="InTime"></param>
  /// <param name="StartValue">1 if the four digits left after removing ":" and "." are 2400 or
  /// more, else <c>StartValue</c>.</param>
  /// <returns>For example, <c>Str2AddDay("25:30")</c> returns <c>1899-12-31</c>.</returns>
  /// <remarks>
  /// <para>1 if the four digits left after removing ":" and "." are 2400 or more, else
  /// <c>StartValue</c>.</para>
  /// </remarks>
  public DateTime Str2AddDay(string InTime, short StartValue = 0) {
    fixed (char* text0_ = InTime) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, InTime);
      values_[1].Set(StartValue);
      return Handle.Invoke(25, values_, StartValue != 0 ? 2 : 1).TakeDate();
    }
  }

  /// <summary>Reads a clock time such as "9:30" or "9:30 PM".</summary>
  /// <returns>For example, <c>Str2TIME("6:00")</c> returns <c>1899-12-30 06:00:00</c>.</returns>
  /// <remarks>
  /// <para>"0930" and "9:30:15" (seconds dropped) are read too. The result is a time of day, 00:00
  /// for other text. "PM" adds 12 hours to any hour and the day wraps at 24, so "12:30 PM" is
  /// 00:30.</para>
  /// </remarks>
  public DateTime Str2TIME(string InTime) {
    fixed (char* text0_ = InTime) {
      var value_ = new Value();
      value_.Set(text0_, InTime);
      return Handle.Invoke(26, &value_, 1).TakeDate();
    }
  }

  /// <summary>Reads "H:M" as hours.</summary>
  /// <returns>For example, <c>CTHour("7:30")</c> returns <c>7.5</c>.</returns>
  /// <remarks>
  /// <para>Minutes above 60 count as 60; a "-" in front is the sign of the whole text, so "-1:30"
  /// is -1.5. A text without ":" is a bare number of hours.</para>
  /// </remarks>
  public double CTHour(string ITimeText) {
    fixed (char* text0_ = ITimeText) {
      var value_ = new Value();
      value_.Set(text0_, ITimeText);
      return Handle.Invoke(27, &value_, 1).TakeDouble();
    }
  }

  /// <summary>Whether an "H:M" text amounts to anything but zero.</summary>
  /// <param name="IHourText"></param>
  /// <param name="AcceptZeroValue">Four characters "HHMM" count too; with <c>AcceptZeroValue</c>
  /// the result is always True.</param>
  /// <returns>For example, <c>isHour("7:30")</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para>Four characters "HHMM" count too; with <c>AcceptZeroValue</c> the result is always
  /// True.</para>
  /// </remarks>
  public bool isHour(string IHourText, bool AcceptZeroValue = false) {
    fixed (char* text0_ = IHourText) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, IHourText);
      values_[1].Set(AcceptZeroValue);
      return Handle.Invoke(28, values_, AcceptZeroValue ? 2 : 1).TakeBoolean();
    }
  }

  /// <summary>The 12 month names; element 0 is empty.</summary>
  /// <returns>For example, <c>GETMonthTextArray(False, False)</c> returns <c>Jan, Feb, Mar, Apr,
  /// May, Jun, Jul, Aug, Sep, Oct, Nov, Dec</c>.</returns>
  /// <remarks>
  /// <para>Full or short, Thai or English; the index is the month's number. The spellings are fixed
  /// ("Febuary").</para>
  /// </remarks>
  public string[] GETMonthTextArray(bool FullText, bool UseThai) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(FullText);
    values_[1].Set(UseThai);
    return Handle.Invoke(29, values_, 2).TakeTextList();
  }

  /// <summary>The 7 day names from Sunday; element 0 is empty.</summary>
  /// <returns>For example, <c>GETDayTextArray(True, True)</c> returns <c>อาทิตย์, จันทร์, อังคาร, พุธ,
  /// พฤหัส, ศุกร์, เสาร์</c>.</returns>
  /// <remarks>
  /// <para>The index is the weekday's number (1 = Sunday). The spellings are fixed
  /// ("Thusday").</para>
  /// </remarks>
  public string[] GETDayTextArray(bool FullText, bool UseThai) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(FullText);
    values_[1].Set(UseThai);
    return Handle.Invoke(30, values_, 2).TakeTextList();
  }

  /// <summary>The name of a month.</summary>
  /// <returns>For example, <c>MonthText(1, True, True)</c> returns <c>"มกราคม"</c>.</returns>
  /// <remarks>
  /// <para>Empty for 0, but January for a negative number and December for one above 12.</para>
  /// </remarks>
  public string MonthText(short MonthNumber, bool FullText, bool UseThai) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(MonthNumber);
    values_[1].Set(FullText);
    values_[2].Set(UseThai);
    return Handle.InvokeText(31, values_, 3);
  }

  /// <summary>The name of a date's weekday.</summary>
  /// <returns>For example, <c>DayText(2024-01-15, True, True)</c> returns <c>"จันทร์"</c>.</returns>
  public string DayText(DateTime iDate, bool FullText, bool UseThai) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(iDate);
    values_[1].Set(FullText);
    values_[2].Set(UseThai);
    return Handle.InvokeText(32, values_, 3);
  }

  /// <summary>The month and year of a date in English.</summary>
  /// <returns>For example, <c>MonthYearTextFull(2024-01-15)</c> returns <c>"January
  /// 2024"</c>.</returns>
  /// <remarks>
  /// <para><c>FormatTDate2</c> with the layout <c>ZQ7MMMYYYY</c>: "January 2024".</para>
  /// </remarks>
  public string MonthYearTextFull(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.InvokeText(33, &value_, 1);
  }

  /// <summary>Writes a date in the system's own layout.</summary>
  /// <returns>For example, <c>FormatTDate(2024-01-05)</c> returns <c>"5/1/2567"</c>.</returns>
  /// <remarks>
  /// <para><c>FormatTDate2</c> with that layout: "15/1/2567".</para>
  /// </remarks>
  public string FormatTDate(DateTime InDate, bool ZeroLeader = false) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(InDate);
    values_[1].Set(ZeroLeader);
    return Handle.InvokeText(34, values_, ZeroLeader ? 2 : 1);
  }

  /// <summary>Writes a date in one of the layouts of <c>CTDateType</c>.</summary>
  /// <param name="InDate"></param>
  /// <param name="DateType">A <c>DateType</c> that is not a layout counts as
  /// <c>ZQ7Detect</c>.</param>
  /// <param name="ZeroLeader"><c>ZeroLeader</c> writes day and month with two digits.</param>
  /// <returns>For example, <c>FormatTDate2(2024-01-15, ZQ7DMMBBBB)</c> returns <c>"15 ม.ค.
  /// 2567"</c>.</returns>
  /// <remarks>
  /// <para>A <c>DateType</c> that is not a layout counts as <c>ZQ7Detect</c>. <c>ZeroLeader</c>
  /// writes day and month with two digits.</para>
  /// <para>Empty for a blank date. For any other date, a year of 2400 or more is Buddhist already:
  /// BBBB shows it unchanged, YYYY shows it less 543. Both show the sentinel years 3333 and 8888
  /// unchanged. Years have at least four digits.</para>
  /// </remarks>
  public string FormatTDate2(DateTime InDate, CTDateType DateType, bool ZeroLeader = false) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(InDate);
    values_[1].Set((int)DateType);
    values_[2].Set(ZeroLeader);
    return Handle.InvokeText(35, values_, ZeroLeader ? 3 : 2);
  }

  /// <summary>Writes a date in the system's own layout and the time of day.</summary>
  /// <returns>For example, <c>FormatTDateTime(2024-01-15 09:30:00)</c> returns <c>"15/1/2567
  /// 09:30"</c>.</returns>
  /// <remarks>
  /// <para><c>FormatTDate</c>, a blank and the time of day: "15/1/2567 09:30". Empty for a blank
  /// date.</para>
  /// </remarks>
  public string FormatTDateTime(DateTime InDate, bool ZeroLeader = false) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(InDate);
    values_[1].Set(ZeroLeader);
    return Handle.InvokeText(36, values_, ZeroLeader ? 2 : 1);
  }

  /// <summary>Writes a date by a pattern, in the system's era and language.</summary>
  /// <returns>For example, <c>Format2000(2024-01-15)</c> returns <c>"15/1/2567"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 for a pattern that ends inside quotes or in a
  /// single "\", even then.</exception>
  /// <remarks>
  /// <para>"yyyy" and "bbbb" are both the year that <c>Year2000</c> returns; names are Thai on a
  /// Buddhist system, where the default pattern writes "15/1/2567", and English on others:
  /// "15/1/2024". An empty pattern counts as left out.</para>
  /// <para>In a pattern d, m, y, b, h, n and s stand for day, month, Gregorian and Buddhist year,
  /// hour, minute and second, AM/PM selects the 12-hour clock, and text in double quotes or after
  /// "\" is copied; docs/dates.md has the table. "m" and "mm" are minutes right after "h" or right
  /// before "s". The weekday is that of the Gregorian day meant: the year 2567 has those of
  /// 2024.</para>
  /// <para>Empty for a blank date. Raises 5 for a pattern that ends inside quotes or in a single
  /// "\", even then.</para>
  /// </remarks>
  public string Format2000(DateTime InDate, string FormatText = "d/m/yyyy") {
    fixed (char* text1_ = FormatText) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(InDate);
      values_[1].Set(text1_, FormatText);
      return Handle.InvokeText(37, values_, FormatText != "d/m/yyyy" ? 2 : 1);
    }
  }

  /// <summary>Writes a date by a pattern, with Thai names and Buddhist years.</summary>
  /// <returns>For example, <c>FormatThai(2024-01-15)</c> returns <c>"15 มกราคม 2567"</c>.</returns>
  /// <remarks>
  /// <para>The pattern is as for <c>Format2000</c>; "yyyy" and "bbbb" are both the Buddhist year:
  /// "15 มกราคม 2567". Years are numbered as in <c>FormatTDate2</c>.</para>
  /// </remarks>
  public string FormatThai(DateTime InDate, string FormatText = "d mmmm bbbb") {
    fixed (char* text1_ = FormatText) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(InDate);
      values_[1].Set(text1_, FormatText);
      return Handle.InvokeText(38, values_, FormatText != "d mmmm bbbb" ? 2 : 1);
    }
  }

  /// <summary>Writes the Thai date reversed, for sorting.</summary>
  /// <returns>For example, <c>FormatThaiRevere(2024-01-15)</c> returns
  /// <c>"2567/01/15"</c>.</returns>
  /// <remarks>
  /// <para>15 January 2024 is "2567/01/15". Empty for a blank date. <c>GETDateFromTextYYYYMMDD</c>
  /// reads it back.</para>
  /// </remarks>
  public string FormatThaiRevere(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.InvokeText(39, &value_, 1);
  }

  /// <summary>Writes a date by a pattern, with English names and Gregorian years.</summary>
  /// <returns>For example, <c>FormatEnglish(2024-01-15)</c> returns <c>"15 January
  /// 2024"</c>.</returns>
  /// <remarks>
  /// <para>The pattern is as for <c>Format2000</c>; "yyyy" and "bbbb" are both the Gregorian year:
  /// "15 January 2024". Years are numbered as in <c>FormatTDate2</c>.</para>
  /// </remarks>
  public string FormatEnglish(DateTime InDate, string FormatText = "d mmmm yyyy") {
    fixed (char* text1_ = FormatText) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(InDate);
      values_[1].Set(text1_, FormatText);
      return Handle.InvokeText(40, values_, FormatText != "d mmmm yyyy" ? 2 : 1);
    }
  }

  /// <summary>Writes a date for a database query; NULL for a blank date.</summary>
  /// <returns>For example, <c>FormatQuery(2024-01-15)</c> returns <c>"2024-01-15"</c>.</returns>
  /// <remarks>
  /// <para>The Gregorian day, the same in every convention: "2024-01-15". The host adds the quotes,
  /// and none around NULL.</para>
  /// <para>A Buddhist 29 February becomes the 28th if its Gregorian year has none.</para>
  /// </remarks>
  public string FormatQuery(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.InvokeText(41, &value_, 1);
  }

  /// <summary>Writes a date and its time for a database query; NULL for a blank date.</summary>
  /// <returns>For example, <c>FormatQueryTime(2024-01-15 09:30:00)</c> returns <c>"2024-01-15
  /// 09:30:00"</c>.</returns>
  /// <remarks>
  /// <para>"2024-01-15 09:30:00"; otherwise as <c>FormatQuery</c>.</para>
  /// </remarks>
  public string FormatQueryTime(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.InvokeText(42, &value_, 1);
  }

  /// <summary>Writes the time of day as "HH:MM".</summary>
  /// <returns>For example, <c>FormatTime(2024-01-15 09:30:00)</c> returns <c>"09:30"</c>.</returns>
  public string FormatTime(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.InvokeText(43, &value_, 1);
  }

  /// <summary>Writes the time of day by a pattern.</summary>
  /// <returns>For example, <c>FormatTime2(2024-01-15 09:30:00)</c> returns
  /// <c>"09:30:00"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 as <c>Format2000</c> does.</exception>
  /// <remarks>
  /// <para>The default pattern writes "09:30:00". Date letters work as in <c>Format2000</c>. No
  /// date is blank here: midnight of any day is "00:00:00". Raises 5 as <c>Format2000</c>
  /// does.</para>
  /// </remarks>
  public string FormatTime2(DateTime InDate, string FormatText = "hh:nn:ss") {
    fixed (char* text1_ = FormatText) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(InDate);
      values_[1].Set(text1_, FormatText);
      return Handle.InvokeText(44, values_, FormatText != "hh:nn:ss" ? 2 : 1);
    }
  }

  /// <summary>Writes the month of a date, the year first.</summary>
  /// <returns>For example, <c>FormatPeriod(2024-01-15)</c> returns <c>"2567/01"</c>.</returns>
  /// <remarks>
  /// <para>As <c>CTPeriod</c> reads it: "2567/01". The year is the one that <c>FormatTDate</c>
  /// shows. Empty for a blank date.</para>
  /// </remarks>
  public string FormatPeriod(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.InvokeText(45, &value_, 1);
  }

  /// <summary>Writes the month of a date, the month first.</summary>
  /// <returns>For example, <c>FormatTPeriod(2024-01-15)</c> returns <c>"01/2567"</c>.</returns>
  /// <remarks>
  /// <para>As <c>isMounthYear</c> accepts it: "01/2567"; otherwise as <c>FormatPeriod</c>.</para>
  /// </remarks>
  public string FormatTPeriod(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.InvokeText(46, &value_, 1);
  }

  /// <summary>Moves a date by single months, cut back to the last day of each.</summary>
  /// <param name="InDate"></param>
  /// <param name="NumberOfMonth">The result is at 00:00; a <c>NumberOfMonth</c> of 0 counts as 1
  /// (docs/surprises.md).</param>
  /// <returns>For example, <c>AddMonth(2024-01-31, 1)</c> returns <c>2024-02-29</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 beyond December 9999, and before January 100 on a
  /// Buddhist system; on a Gregorian one the month before January 100 is read as December of "99",
  /// which is 1999.</exception>
  /// <remarks>
  /// <para>The result is at 00:00; a <c>NumberOfMonth</c> of 0 counts as 1 (docs/surprises.md). A
  /// day that a month does not have is cut back to its last and stays cut back: 31 January plus 2
  /// months is 28 March (29 in a leap year).</para>
  /// <para>Raises 5 beyond December 9999, and before January 100 on a Buddhist system; on a
  /// Gregorian one the month before January 100 is read as December of "99", which is 1999.</para>
  /// </remarks>
  public DateTime AddMonth(DateTime InDate, short NumberOfMonth = 0) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(InDate);
    values_[1].Set(NumberOfMonth);
    return Handle.Invoke(47, values_, NumberOfMonth != 0 ? 2 : 1).TakeDate();
  }

  /// <summary>Moves a date by years of twelve single months.</summary>
  /// <returns>For example, <c>AddYear(2024-02-29, 1)</c> returns <c>2025-02-28</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 if the months exceed 16 bits.</exception>
  /// <remarks>
  /// <para><c>AddMonth</c> by 12 months a year; 0 counts as 1 year. Raises 6 if the months exceed
  /// 16 bits.</para>
  /// </remarks>
  public DateTime AddYear(DateTime InDate, short NumberOfYear = 0) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(InDate);
    values_[1].Set(NumberOfYear);
    return Handle.Invoke(48, values_, NumberOfYear != 0 ? 2 : 1).TakeDate();
  }

  /// <summary>The first day of a month of a Gregorian year.</summary>
  /// <returns>For example, <c>GETFirstDayOfMonthYear(2, 2024)</c> returns
  /// <c>2024-02-01</c>.</returns>
  /// <exception cref="RunTimeException">Raises 13 for month 0 and for a year that the system does
  /// not read; a year of one or two digits is read as <c>CTDATE</c> reads it. Raises 6 if the
  /// system's year exceeds 16 bits.</exception>
  /// <remarks>
  /// <para>A month below 0 counts as 1, one above 12 as 12. Raises 13 for month 0 and for a year
  /// that the system does not read; a year of one or two digits is read as <c>CTDATE</c> reads it.
  /// Raises 6 if the system's year exceeds 16 bits.</para>
  /// </remarks>
  public DateTime GETFirstDayOfMonthYear(short iMonth, short iYear2000) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(iMonth);
    values_[1].Set(iYear2000);
    return Handle.Invoke(49, values_, 2).TakeDate();
  }

  /// <summary>The last day of a month of a Gregorian year.</summary>
  /// <returns>For example, <c>GETLastDayOfMonthYear(2, 2024)</c> returns
  /// <c>2024-02-29</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 outside 100 to 9999.</exception>
  /// <remarks>
  /// <para>A month outside 1 to 12 carries into other years (13 is January of the next one); years
  /// 0 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999. Raises 5 outside 100 to 9999.</para>
  /// </remarks>
  public DateTime GETLastDayOfMonthYear(short iMonth, short iYear2000) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(iMonth);
    values_[1].Set(iYear2000);
    return Handle.Invoke(50, values_, 2).TakeDate();
  }

  /// <summary>The first Monday of a month of a Gregorian year.</summary>
  /// <returns>For example, <c>GETFirstMondayOfMonthYear(2, 2024)</c> returns
  /// <c>2024-02-05</c>.</returns>
  /// <remarks>
  /// <para>The first Monday on or after <c>GETFirstDayOfMonthYear(iMonth, iYear2000)</c>, which
  /// raises the same. A year of 2400 or more, except 3333 and 8888, has the weekdays of the
  /// Gregorian year that it means: for January 2567 the result is 2567-01-01, because 2024-01-01 is
  /// a Monday.</para>
  /// </remarks>
  public DateTime GETFirstMondayOfMonthYear(short iMonth, short iYear2000) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(iMonth);
    values_[1].Set(iYear2000);
    return Handle.Invoke(51, values_, 2).TakeDate();
  }

  /// <summary>The first Saturday of a month of a Gregorian year.</summary>
  /// <returns>For example, <c>GETFirstSaturdayOfMonthYear(2, 2024)</c> returns
  /// <c>2024-02-03</c>.</returns>
  /// <remarks>
  /// <para>Otherwise as <c>GETFirstMondayOfMonthYear</c>.</para>
  /// </remarks>
  public DateTime GETFirstSaturdayOfMonthYear(short iMonth, short iYear2000) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(iMonth);
    values_[1].Set(iYear2000);
    return Handle.Invoke(52, values_, 2).TakeDate();
  }

  /// <summary>The week of the month that a date is in, 1 to 6.</summary>
  /// <returns>For example, <c>GETWeekOfMonth(2024-01-06)</c> returns <c>1</c>.</returns>
  /// <remarks>
  /// <para>Weeks begin on Sunday, and the 1st is in week 1. A blank date gives 0.</para>
  /// <para>A year of 2400 or more, except 3333 and 8888, has the weekdays of the Gregorian year
  /// that it means. 29 February counts as the 28th if that year has none.</para>
  /// </remarks>
  public short GETWeekOfMonth(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.Invoke(53, &value_, 1).TakeInteger();
  }

  /// <summary>The pay period of the month that a date is in, 1 or 2.</summary>
  /// <returns>For example, <c>GETPeriodOfMonth(2024-01-15)</c> returns <c>1</c>.</returns>
  /// <remarks>
  /// <para>1 for the days 1 to 15, 2 from the 16th on. A blank date gives 0.</para>
  /// </remarks>
  public short GETPeriodOfMonth(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.Invoke(54, &value_, 1).TakeInteger();
  }

  /// <summary>Whether a date is a Saturday or a Sunday.</summary>
  /// <returns>For example, <c>ISWeekHoliday(2024-01-14)</c> returns <c>True</c>.</returns>
  /// <remarks>
  /// <para>The weekdays are those of <c>GETWeekOfMonth</c>. A blank date is neither.</para>
  /// </remarks>
  public bool ISWeekHoliday(DateTime InDate) {
    var value_ = new Value();
    value_.Set(InDate);
    return Handle.Invoke(55, &value_, 1).TakeBoolean();
  }

  /// <summary>Estimates the days that work will still take from the part done so far.</summary>
  /// <param name="StartDate">The work started at <c>StartDate</c>: elapsed × (total − done) ÷ done,
  /// a span in days of at most 2958465. 0 if nothing or everything is done, and for a start in the
  /// future.</param>
  /// <param name="DoneCount"></param>
  /// <param name="TotalCount"></param>
  /// <returns>For example, <c>TimeLeftDateTime(2024-01-15 03:30:00, 1, 4)</c> returns <c>1899-12-30
  /// 18:00:00</c>.</returns>
  /// <remarks>
  /// <para>The work started at <c>StartDate</c>: elapsed × (total − done) ÷ done, a span in days of
  /// at most 2958465. 0 if nothing or everything is done, and for a start in the future.</para>
  /// </remarks>
  public DateTime TimeLeftDateTime(DateTime StartDate, double DoneCount, double TotalCount) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(StartDate);
    values_[1].Set(DoneCount);
    values_[2].Set(TotalCount);
    return Handle.Invoke(56, values_, 3).TakeDate();
  }

  /// <summary>Writes a span of days as its two largest units.</summary>
  /// <param name="TimeLeft">Raises 6 if <c>TimeLeft</c> is infinite or NaN.</param>
  /// <param name="UseThai">Thai if <c>UseThai</c> is True, or if it is left out on a Buddhist
  /// system.</param>
  /// <returns>For example, <c>FormatTimeleft(1.25, False)</c> returns <c>"1 day 6
  /// hours"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 if <c>TimeLeft</c> is infinite or NaN.</exception>
  /// <remarks>
  /// <para>Rounded to the second; units that are 0 do not count, and the rest is cut off: "1 day 2
  /// hours", "1 day 5 minutes", "3 minutes 5 seconds", "0 seconds", or "1 วัน 2 ชั่วโมง". Thai if
  /// <c>UseThai</c> is True, or if it is left out on a Buddhist system.</para>
  /// <para>A negative span is "0 seconds". Raises 6 if <c>TimeLeft</c> is infinite or NaN.</para>
  /// </remarks>
  public string FormatTimeleft(double TimeLeft, bool? UseThai = null) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(TimeLeft);
    if (UseThai.HasValue) values_[1].Set(UseThai.Value); else values_[1].Omit();
    return Handle.InvokeText(57, values_, UseThai != null ? 2 : 1);
  }

  /// <summary>Writes the time that work will still take.</summary>
  /// <returns>For example, <c>TimeLeftText(2024-01-15 09:00:00, 3, 10, False)</c> returns <c>"1
  /// hour 10 minutes"</c>.</returns>
  /// <remarks>
  /// <para><c>FormatTimeleft</c> of <c>TimeLeftDateTime</c>; empty while nothing is done and
  /// something is left, as no estimate can be made.</para>
  /// </remarks>
  public string TimeLeftText(DateTime StartDate, double DoneCount, double TotalCount,
      bool? UseThai = null) {
    Value* values_ = stackalloc Value[4];
    values_[0].Set(StartDate);
    values_[1].Set(DoneCount);
    values_[2].Set(TotalCount);
    if (UseThai.HasValue) values_[3].Set(UseThai.Value); else values_[3].Omit();
    return Handle.InvokeText(58, values_, UseThai != null ? 4 : 3);
  }

  /// <summary>The due date of an invoice.</summary>
  /// <param name="InvoiceDate">Type 0 adds <c>NetDay</c> days to <c>InvoiceDate</c>, types 1 and 2
  /// <c>DeliveryDay</c> and <c>NetDay</c>; the time of day is kept.</param>
  /// <param name="ConditionType"></param>
  /// <param name="NetDay">Type 0 adds <c>NetDay</c> days to <c>InvoiceDate</c>, types 1 and 2
  /// <c>DeliveryDay</c> and <c>NetDay</c>; the time of day is kept. Type 4 adds <c>NetDay</c> to
  /// the end-of-month date, types 3 and 5 to 8 <c>DeliveryDay</c> and <c>NetDay</c>.</param>
  /// <param name="DeliveryDay">Type 0 adds <c>NetDay</c> days to <c>InvoiceDate</c>, types 1 and 2
  /// <c>DeliveryDay</c> and <c>NetDay</c>; the time of day is kept. Type 4 adds <c>NetDay</c> to
  /// the end-of-month date, types 3 and 5 to 8 <c>DeliveryDay</c> and <c>NetDay</c>.</param>
  /// <returns>For example, <c>GetConditionDueDate(2024-01-15, ZQ7AfterInvoiceDate, 30, 0)</c>
  /// returns <c>2024-02-14</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 beyond the range of dates.</exception>
  /// <remarks>
  /// <para>Type 0 adds <c>NetDay</c> days to <c>InvoiceDate</c>, types 1 and 2 <c>DeliveryDay</c>
  /// and <c>NetDay</c>; the time of day is kept. Type 4 adds <c>NetDay</c> to the end-of-month
  /// date, types 3 and 5 to 8 <c>DeliveryDay</c> and <c>NetDay</c>. Returns the zero date for any
  /// other type.</para>
  /// <para>The end-of-month date is <c>GETLastDayOfMonthYear</c> with the year given as the month
  /// and the month as the year, at 00:00: for March 2024 it is 2171-08-31. Stored documents hold
  /// due dates made so; docs/surprises.md shows how to get the end of the invoice's month, and what
  /// happens to a blank date. Raises 5 beyond the range of dates.</para>
  /// </remarks>
  public DateTime GetConditionDueDate(DateTime InvoiceDate, ZQ7ConditionType ConditionType,
      short NetDay, short DeliveryDay) {
    Value* values_ = stackalloc Value[4];
    values_[0].Set(InvoiceDate);
    values_[1].Set((int)ConditionType);
    values_[2].Set(NetDay);
    values_[3].Set(DeliveryDay);
    return Handle.Invoke(59, values_, 4).TakeDate();
  }

  /// <summary>Writes a payment term in trade notation.</summary>
  /// <param name="Condition1">The discount <c>Condition1</c> (percent, one decimal) comes first if
  /// it and <c>ConditionDay1</c> (days) are above 0.</param>
  /// <param name="ConditionDay1">The discount <c>Condition1</c> (percent, one decimal) comes first
  /// if it and <c>ConditionDay1</c> (days) are above 0.</param>
  /// <param name="ConditionType"></param>
  /// <param name="OutputType">Only the value 1 of <c>OutputType</c> writes the event in full; an
  /// unknown event is the invoice date.</param>
  /// <param name="ConditionDay">"CASH" alone if <c>ConditionDay</c> (days) is 0 or less.</param>
  /// <returns>For example, <c>FormatCondition2(2, 10, ZQ7AfterInvoiceDate,
  /// ZQ7ConditionOutputTypeShort, 30)</c> returns <c>"2.0/10, N/30 AID"</c>.</returns>
  /// <remarks>
  /// <para>"2.0/10, N/30 AID" is a discount of 2.0 % within 10 days, net 30 days after the invoice
  /// date.</para>
  /// <para>"CASH" alone if <c>ConditionDay</c> (days) is 0 or less. The discount <c>Condition1</c>
  /// (percent, one decimal) comes first if it and <c>ConditionDay1</c> (days) are above 0. Only the
  /// value 1 of <c>OutputType</c> writes the event in full; an unknown event is the invoice
  /// date.</para>
  /// </remarks>
  public string FormatCondition2(float Condition1, short ConditionDay1,
      ZQ7ConditionType ConditionType, ZQ7ConditionOutputType OutputType, float ConditionDay) {
    Value* values_ = stackalloc Value[5];
    values_[0].Set(Condition1);
    values_[1].Set(ConditionDay1);
    values_[2].Set((int)ConditionType);
    values_[3].Set((int)OutputType);
    values_[4].Set(ConditionDay);
    return Handle.InvokeText(60, values_, 5);
  }

  /// <summary><c>FormatCondition2</c> with the event and the output as numbers.</summary>
  /// <returns>For example, <c>FormatCondition(0, 0, 0, 0, 30)</c> returns <c>"N/30
  /// AID"</c>.</returns>
  /// <remarks>
  /// <para>They are rounded to whole numbers, halves to even.</para>
  /// </remarks>
  public string FormatCondition(float Condition1, short ConditionDay1, float ConditionType,
      float OutputType, float ConditionDay) {
    Value* values_ = stackalloc Value[5];
    values_[0].Set(Condition1);
    values_[1].Set(ConditionDay1);
    values_[2].Set(ConditionType);
    values_[3].Set(OutputType);
    values_[4].Set(ConditionDay);
    return Handle.InvokeText(61, values_, 5);
  }

  /// <summary>Rounds a number as it prints, half away from zero.</summary>
  /// <param name="iValue"></param>
  /// <param name="DecimalDigit">Its 15 significant digits are rounded to <c>DecimalDigit</c>
  /// decimals, so 2.345 at 2 gives 2.35 although the double lies below it. Raises 5 for a negative
  /// <c>DecimalDigit</c> and 6 for infinities and NaN, as do the operations below that use
  /// it.</param>
  /// <param name="IgnoreNextDigit">With <c>IgnoreNextDigit</c> it is rounded to two more decimals,
  /// which are then cut off: 1.2349 at 2 gives 1.23, but 1.23996 gives 1.24.</param>
  /// <returns>For example, <c>FixNumber2(2.345, 2, False)</c> returns <c>2.35</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 for a negative <c>DecimalDigit</c> and 6 for
  /// infinities and NaN, as do the operations below that use it.</exception>
  /// <remarks>
  /// <para>Its 15 significant digits are rounded to <c>DecimalDigit</c> decimals, so 2.345 at 2
  /// gives 2.35 although the double lies below it. With <c>IgnoreNextDigit</c> it is rounded to two
  /// more decimals, which are then cut off: 1.2349 at 2 gives 1.23, but 1.23996 gives 1.24. Raises
  /// 5 for a negative <c>DecimalDigit</c> and 6 for infinities and NaN, as do the operations below
  /// that use it.</para>
  /// </remarks>
  public double FixNumber2(double iValue, short DecimalDigit, bool IgnoreNextDigit) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(iValue);
    values_[1].Set(DecimalDigit);
    values_[2].Set(IgnoreNextDigit);
    return Handle.Invoke(62, values_, 3).TakeDouble();
  }

  /// <summary><c>FixNumber2</c> without <c>IgnoreNextDigit</c>.</summary>
  /// <returns>For example, <c>FixNumber(1.005, 2)</c> returns <c>1.01</c>.</returns>
  public double FixNumber(double iValue, short DecimalDigit) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(iValue);
    values_[1].Set(DecimalDigit);
    return Handle.Invoke(63, values_, 2).TakeDouble();
  }

  /// <summary>The same as <c>FixNumber</c>.</summary>
  /// <returns>For example, <c>Round(-2.5, 0)</c> returns <c>-3</c>.</returns>
  public double Round(double iValue, short DecimalDigit) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(iValue);
    values_[1].Set(DecimalDigit);
    return Handle.Invoke(64, values_, 2).TakeDouble();
  }

  /// <summary>Cuts a number toward zero.</summary>
  /// <returns>For example, <c>Floor(-2.5)</c> returns <c>-2</c>.</returns>
  /// <remarks>
  /// <para><c>FixNumber2</c> at 0 decimals with <c>IgnoreNextDigit</c>, so the number is rounded to
  /// two decimals first: -2.5 gives -2 and 2.999 gives 3.</para>
  /// </remarks>
  public double Floor(double iValue) {
    var value_ = new Value();
    value_.Set(iValue);
    return Handle.Invoke(65, &value_, 1).TakeDouble();
  }

  /// <summary><c>Floor</c>, plus 1 if the number is above it.</summary>
  /// <returns>For example, <c>Ceiling(2.001)</c> returns <c>3</c>.</returns>
  /// <remarks>
  /// <para>2.001 gives 3, -2.5 gives -2.</para>
  /// </remarks>
  public double Ceiling(double iValue) {
    var value_ = new Value();
    value_.Set(iValue);
    return Handle.Invoke(66, &value_, 1).TakeDouble();
  }

  /// <summary>Rounds a number and brings it to a whole unit.</summary>
  /// <param name="iValue"></param>
  /// <param name="DecimalDigit">It is rounded to <c>DecimalDigit</c> decimals and then brought to a
  /// whole unit as <c>CutMode</c> says, whatever <c>DecimalDigit</c> is: 12.345 at 2 gives 12.35
  /// (none), 12 (five up), 13 (all up), 12 (all down).</param>
  /// <param name="CutMode">It is rounded to <c>DecimalDigit</c> decimals and then brought to a
  /// whole unit as <c>CutMode</c> says, whatever <c>DecimalDigit</c> is: 12.345 at 2 gives 12.35
  /// (none), 12 (five up), 13 (all up), 12 (all down).</param>
  /// <returns>For example, <c>FixNumberWithCutMode(12.345, 2, ZQ7FixUnitNone)</c> returns
  /// <c>12.35</c>.</returns>
  /// <remarks>
  /// <para>It is rounded to <c>DecimalDigit</c> decimals and then brought to a whole unit as
  /// <c>CutMode</c> says, whatever <c>DecimalDigit</c> is: 12.345 at 2 gives 12.35 (none), 12 (five
  /// up), 13 (all up), 12 (all down). Any other mode counts as none. All up leaves a negative
  /// number with a fraction as it is.</para>
  /// </remarks>
  public double FixNumberWithCutMode(double iValue, short DecimalDigit, ZQ7FixUnit CutMode) {
    Value* values_ = stackalloc Value[3];
    values_[0].Set(iValue);
    values_[1].Set(DecimalDigit);
    values_[2].Set((int)CutMode);
    return Handle.Invoke(67, values_, 3).TakeDouble();
  }

  /// <summary>Brings an amount to a whole unit.</summary>
  /// <param name="iValue"></param>
  /// <param name="IncreaseToCeiling">A positive amount with a fraction goes up with
  /// <c>IncreaseToCeiling</c>, else down; other amounts are returned unchanged.</param>
  /// <param name="CelingList"><c>CelingList</c>, a list of satang steps such as "25;50;75", has no
  /// effect: each step is rounded to 0 or 1 unit before it is compared, and both ends of the scale
  /// are always in the list.</param>
  /// <returns>For example, <c>FixMoneyDecimal(12.2500, True)</c> returns <c>13.0000</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 if the unit above is out of range.</exception>
  /// <remarks>
  /// <para>A positive amount with a fraction goes up with <c>IncreaseToCeiling</c>, else down;
  /// other amounts are returned unchanged. Raises 6 if the unit above is out of range.</para>
  /// <para><c>CelingList</c>, a list of satang steps such as "25;50;75", has no effect: each step
  /// is rounded to 0 or 1 unit before it is compared, and both ends of the scale are always in the
  /// list. Printed totals depend on the whole units (docs/surprises.md).</para>
  /// </remarks>
  public decimal FixMoneyDecimal(decimal iValue, bool IncreaseToCeiling, string CelingList = "") {
    fixed (char* text2_ = CelingList) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(iValue);
      values_[1].Set(IncreaseToCeiling);
      values_[2].Set(text2_, CelingList);
      return Handle.Invoke(68, values_, (CelingList == null || CelingList.Length > 0) ? 3 :
          2).TakeCurrency();
    }
  }

  /// <summary>Reads the number at the front of a typed text.</summary>
  /// <returns>For example, <c>StrVal("1,234.50 baht")</c> returns <c>1234.5</c>.</returns>
  /// <remarks>
  /// <para>Blanks, "," and "%" are skipped anywhere; tabs and line breaks, as in pasted cells, only
  /// at the front. "1,234.50" is 1234.5, "12.5%" is 0.125, "abc" is 0. An exponent (E or D) needs a
  /// digit. Never fails: a number too large for a double gives 0.</para>
  /// </remarks>
  public double StrVal(string istr) {
    fixed (char* text0_ = istr) {
      var value_ = new Value();
      value_.Set(text0_, istr);
      return Handle.Invoke(69, &value_, 1).TakeDouble();
    }
  }

  /// <summary><c>StrVal</c>, rounded; -1 does not round.</summary>
  /// <param name="istr"></param>
  /// <param name="DecimalDigit">Rounded as by <c>FixNumber</c>, to <c>DecimalDigit</c> decimals.
  /// Returns 0 for a <c>DecimalDigit</c> that <c>FixNumber</c> refuses.</param>
  /// <returns>For example, <c>StrVal2("1.005", 2)</c> returns <c>1.01</c>.</returns>
  /// <remarks>
  /// <para>Rounded as by <c>FixNumber</c>, to <c>DecimalDigit</c> decimals. Returns 0 for a
  /// <c>DecimalDigit</c> that <c>FixNumber</c> refuses.</para>
  /// </remarks>
  public double StrVal2(string istr, int DecimalDigit) {
    fixed (char* text0_ = istr) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, istr);
      values_[1].Set(DecimalDigit);
      return Handle.Invoke(70, values_, 2).TakeDouble();
    }
  }

  /// <summary><c>StrVal2</c> as a 16-bit integer, halves to even.</summary>
  /// <returns>For example, <c>StrInt("2.5")</c> returns <c>2</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 beyond its range.</exception>
  /// <remarks>
  /// <para>Raises 6 beyond its range.</para>
  /// </remarks>
  public short StrInt(string istr, int DecimalDigit = -1) {
    fixed (char* text0_ = istr) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, istr);
      values_[1].Set(DecimalDigit);
      return Handle.Invoke(71, values_, DecimalDigit != -1 ? 2 : 1).TakeInteger();
    }
  }

  /// <summary><c>StrVal2</c> as a 32-bit integer, halves to even.</summary>
  /// <returns>For example, <c>StrLng("40,000")</c> returns <c>40000</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 beyond its range.</exception>
  /// <remarks>
  /// <para>Raises 6 beyond its range.</para>
  /// </remarks>
  public int StrLng(string istr, int DecimalDigit = -1) {
    fixed (char* text0_ = istr) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, istr);
      values_[1].Set(DecimalDigit);
      return Handle.Invoke(72, values_, DecimalDigit != -1 ? 2 : 1).TakeLong();
    }
  }

  /// <summary><c>StrVal2</c> as a 32-bit float.</summary>
  /// <returns>For example, <c>StrSng("1.5")</c> returns <c>1.5</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 beyond its range.</exception>
  /// <remarks>
  /// <para>Raises 6 beyond its range.</para>
  /// </remarks>
  public float StrSng(string istr, int DecimalDigit = -1) {
    fixed (char* text0_ = istr) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, istr);
      values_[1].Set(DecimalDigit);
      return Handle.Invoke(73, values_, DecimalDigit != -1 ? 2 : 1).TakeSingle();
    }
  }

  /// <summary>A number, or 0 for a missing one.</summary>
  /// <returns>For example, <c>Null2Zero(1.5)</c> returns <c>1.5</c>.</returns>
  public double Null2Zero(double? InputValue = null) {
    var value_ = new Value();
    if (InputValue.HasValue) value_.Set(InputValue.Value); else value_.Omit();
    return Handle.Invoke(74, &value_, InputValue != null ? 1 : 0).TakeDouble();
  }

  /// <summary>The digits of a text.</summary>
  /// <param name="iText">The characters "0" to "9" of <c>iText</c>, with <c>IncludeDot</c> also
  /// ".", with <c>IncludeSign</c> also "+" and "-".</param>
  /// <param name="IncludeDot">The characters "0" to "9" of <c>iText</c>, with <c>IncludeDot</c>
  /// also ".", with <c>IncludeSign</c> also "+" and "-".</param>
  /// <param name="IncludeSign">The characters "0" to "9" of <c>iText</c>, with <c>IncludeDot</c>
  /// also ".", with <c>IncludeSign</c> also "+" and "-".</param>
  /// <returns>For example, <c>Numb("INV-0042.5")</c> returns <c>"00425"</c>.</returns>
  /// <remarks>
  /// <para>The characters "0" to "9" of <c>iText</c>, with <c>IncludeDot</c> also ".", with
  /// <c>IncludeSign</c> also "+" and "-".</para>
  /// </remarks>
  public string Numb(string iText, bool IncludeDot = false, bool IncludeSign = false) {
    fixed (char* text0_ = iText) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, iText);
      values_[1].Set(IncludeDot);
      values_[2].Set(IncludeSign);
      return Handle.InvokeText(75, values_, IncludeSign ? 3 : IncludeDot ? 2 : 1);
    }
  }

  /// <summary>The same as <c>Numb</c>.</summary>
  /// <returns>For example, <c>Trim2Number("02-123")</c> returns <c>"02123"</c>.</returns>
  public string Trim2Number(string iText, bool IncludeDot = false, bool IncludeSign = false) {
    fixed (char* text0_ = iText) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, iText);
      values_[1].Set(IncludeDot);
      values_[2].Set(IncludeSign);
      return Handle.InvokeText(76, values_, IncludeSign ? 3 : IncludeDot ? 2 : 1);
    }
  }

  /// <summary>Days to hours.</summary>
  /// <returns>For example, <c>d2h(0.5)</c> returns <c>12</c>.</returns>
  public double d2h(double iDay) {
    var value_ = new Value();
    value_.Set(iDay);
    return Handle.Invoke(77, &value_, 1).TakeDouble();
  }

  /// <summary>Days to minutes.</summary>
  /// <returns>For example, <c>d2m(0.5)</c> returns <c>720</c>.</returns>
  public double d2m(double iDay) {
    var value_ = new Value();
    value_.Set(iDay);
    return Handle.Invoke(78, &value_, 1).TakeDouble();
  }

  /// <summary>Hours to days.</summary>
  /// <returns>For example, <c>h2d(12)</c> returns <c>0.5</c>.</returns>
  public double h2d(double iHour) {
    var value_ = new Value();
    value_.Set(iHour);
    return Handle.Invoke(79, &value_, 1).TakeDouble();
  }

  /// <summary>Minutes to days.</summary>
  /// <returns>For example, <c>m2d(720)</c> returns <c>0.5</c>.</returns>
  public double m2d(double iMinute) {
    var value_ = new Value();
    value_.Set(iMinute);
    return Handle.Invoke(80, &value_, 1).TakeDouble();
  }

  /// <summary>The shortest text of a number.</summary>
  /// <returns>For example, <c>d2Str(1234.5)</c> returns <c>"1234.5"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 for infinities and NaN.</exception>
  /// <remarks>
  /// <para>The number is taken to 15 significant digits and written in decimals, with an exponent
  /// from 1E+15 up and below 1E-04: "1234.5", "1E+15". Raises 6 for infinities and NaN.</para>
  /// </remarks>
  public string d2Str(double iValue) {
    var value_ = new Value();
    value_.Set(iValue);
    return Handle.InvokeText(81, &value_, 1);
  }

  /// <summary>Writes a cost price in the letters of a code word.</summary>
  /// <param name="Price"><c>Price</c> is rounded to two decimals as <c>FixNumber</c> does, and a
  /// ".00" is left out.</param>
  /// <param name="CodeWord">The ten units of <c>CodeWord</c> stand for the digits 1 to 9 and 0:
  /// with "BLACKHORSE", 125.50 is "BLK.KE" and 0 is "E".</param>
  /// <returns>For example, <c>FormatCostCode(125.5, "BLACKHORSE")</c> returns
  /// <c>"BLK.KE"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 for a word that is not ten different UTF-16 units
  /// (ignoring the case of A to Z) or holds a digit, ".", "-", a blank or a surrogate. Raises 6 for
  /// more than 15 digits before the ".", and for infinities and NaN.</exception>
  /// <remarks>
  /// <para>Only staff can read the letters on a price tag. The ten units of <c>CodeWord</c> stand
  /// for the digits 1 to 9 and 0: with "BLACKHORSE", 125.50 is "BLK.KE" and 0 is "E".</para>
  /// <para><c>Price</c> is rounded to two decimals as <c>FixNumber</c> does, and a ".00" is left
  /// out. Raises 5 for a word that is not ten different UTF-16 units (ignoring the case of A to Z)
  /// or holds a digit, ".", "-", a blank or a surrogate. Raises 6 for more than 15 digits before
  /// the ".", and for infinities and NaN.</para>
  /// </remarks>
  public string FormatCostCode(double Price, string CodeWord) {
    fixed (char* text1_ = CodeWord) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(Price);
      values_[1].Set(text1_, CodeWord);
      return Handle.InvokeText(82, values_, 2);
    }
  }

  /// <summary>The same with a character for each repeated digit.</summary>
  /// <param name="Price"></param>
  /// <param name="CodeWord"></param>
  /// <param name="RepeatCharacter"><c>FormatCostCode</c> with <c>RepeatCharacter</c> for each digit
  /// that is the same as the one before it, the "." not counted: with "BLACKHORSE" and "X", 5000 is
  /// "KEXX" and 55.50 is "KX.XE". Raises 5 for a <c>RepeatCharacter</c> that is not one unit, is in
  /// the word, or could not be in any word, even if no digit is repeated.</param>
  /// <returns>For example, <c>FormatCostCode2(5000, "BLACKHORSE", "X")</c> returns
  /// <c>"KEXX"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 for a <c>RepeatCharacter</c> that is not one unit,
  /// is in the word, or could not be in any word, even if no digit is repeated.</exception>
  /// <remarks>
  /// <para><c>FormatCostCode</c> with <c>RepeatCharacter</c> for each digit that is the same as the
  /// one before it, the "." not counted: with "BLACKHORSE" and "X", 5000 is "KEXX" and 55.50 is
  /// "KX.XE".</para>
  /// <para>Raises 5 for a <c>RepeatCharacter</c> that is not one unit, is in the word, or could not
  /// be in any word, even if no digit is repeated.</para>
  /// </remarks>
  public string FormatCostCode2(double Price, string CodeWord, string RepeatCharacter) {
    fixed (char* text1_ = CodeWord, text2_ = RepeatCharacter) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(Price);
      values_[1].Set(text1_, CodeWord);
      values_[2].Set(text2_, RepeatCharacter);
      return Handle.InvokeText(83, values_, 3);
    }
  }

  /// <summary>Reads the price that <c>FormatCostCode</c> wrote.</summary>
  /// <returns>For example, <c>DeFormatCostCode("BLK.KE", "BLACKHORSE")</c> returns
  /// <c>125.5</c>.</returns>
  /// <exception cref="RunTimeException">Raises 13 for any other text; the message tells the
  /// position, from 1, of the first unit that does not belong, one past the end if a letter is
  /// missing. Raises 6 beyond the range of a double, and 5 for a word as <c>FormatCostCode</c>
  /// does.</exception>
  /// <remarks>
  /// <para>The code is "-" if the price is negative, then letters of the word (A to Z in either
  /// case), perhaps "." and more letters, with blanks only before and after. The empty code and
  /// blanks alone are 0. A code longer than that of any price is read as the nearest double.</para>
  /// <para>Raises 13 for any other text; the message tells the position, from 1, of the first unit
  /// that does not belong, one past the end if a letter is missing. Raises 6 beyond the range of a
  /// double, and 5 for a word as <c>FormatCostCode</c> does.</para>
  /// </remarks>
  public double DeFormatCostCode(string CostCode, string CodeWord) {
    fixed (char* text0_ = CostCode, text1_ = CodeWord) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, CostCode);
      values_[1].Set(text1_, CodeWord);
      return Handle.Invoke(84, values_, 2).TakeDouble();
    }
  }

  /// <summary>Reads the price that <c>FormatCostCode2</c> wrote.</summary>
  /// <param name="CostCode"></param>
  /// <param name="CodeWord"></param>
  /// <param name="RepeatCharacter">Raises 13 also for a <c>RepeatCharacter</c> with no letter
  /// before it, and 5 for one that <c>FormatCostCode2</c> refuses.</param>
  /// <returns>For example, <c>DeFormatCostCode2("KEXX", "BLACKHORSE", "X")</c> returns
  /// <c>5000</c>.</returns>
  /// <exception cref="RunTimeException">Raises 13 also for a <c>RepeatCharacter</c> with no letter
  /// before it, and 5 for one that <c>FormatCostCode2</c> refuses.</exception>
  /// <remarks>
  /// <para>Otherwise as <c>DeFormatCostCode</c>. A repeated letter may stand for itself: "KEX" and
  /// "KEE" are both 500. Raises 13 also for a <c>RepeatCharacter</c> with no letter before it, and
  /// 5 for one that <c>FormatCostCode2</c> refuses.</para>
  /// </remarks>
  public double DeFormatCostCode2(string CostCode, string CodeWord, string RepeatCharacter) {
    fixed (char* text0_ = CostCode, text1_ = CodeWord, text2_ = RepeatCharacter) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, CostCode);
      values_[1].Set(text1_, CodeWord);
      values_[2].Set(text2_, RepeatCharacter);
      return Handle.Invoke(85, values_, 3).TakeDouble();
    }
  }

  /// <summary>Adds an item to a list unless it is there.</summary>
  /// <param name="iList"></param>
  /// <param name="iAdd">It is there if an item equals <c>iAdd</c> exactly: "a;b" and "c" give
  /// "a;b;c". An empty <c>iAdd</c> is an item like any other.</param>
  /// <param name="SeparateChar">The list given is split at ";", the result joined by
  /// <c>SeparateChar</c> (";" when empty): with "," the list "a;b" comes back as "a,b,c", but "a,b"
  /// is one item.</param>
  /// <returns>For example, <c>AddList("a;b", "c")</c> returns <c>"a;b;c"</c>.</returns>
  /// <remarks>
  /// <para>It is there if an item equals <c>iAdd</c> exactly: "a;b" and "c" give "a;b;c". An empty
  /// <c>iAdd</c> is an item like any other.</para>
  /// <para>The list given is split at ";", the result joined by <c>SeparateChar</c> (";" when
  /// empty): with "," the list "a;b" comes back as "a,b,c", but "a,b" is one item. The text "$#$"
  /// inside an item also splits it.</para>
  /// </remarks>
  public string AddList(string iList, string iAdd, string SeparateChar = ";") {
    fixed (char* text0_ = iList, text1_ = iAdd, text2_ = SeparateChar) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, iList);
      values_[1].Set(text1_, iAdd);
      values_[2].Set(text2_, SeparateChar);
      return Handle.InvokeText(86, values_, SeparateChar != ";" ? 3 : 2);
    }
  }

  /// <summary><c>ArrayString2</c> of up to 20 texts.</summary>
  /// <returns>For example, <c>ArrayString("a", "b")</c> returns <c>a, b</c>.</returns>
  public string[] ArrayString(string i1, string i2 = "", string i3 = "", string i4 = "",
      string i5 = "", string i6 = "", string i7 = "", string i8 = "", string i9 = "",
      string i10 = "", string i11 = "", string i12 = "", string i13 = "", string i14 = "",
      string i15 = "", string i16 = "", string i17 = "", string i18 = "", string i19 = "",
      string i20 = "") {
    fixed (char* text0_ = i1, text1_ = i2, text2_ = i3, text3_ = i4, text4_ = i5, text5_ = i6,
        text6_ = i7, text7_ = i8, text8_ = i9, text9_ = i10, text10_ = i11, text11_ = i12,
        text12_ = i13, text13_ = i14, text14_ = i15, text15_ = i16, text16_ = i17, text17_ = i18,
        text18_ = i19, text19_ = i20) {
      Value* values_ = stackalloc Value[20];
      values_[0].Set(text0_, i1);
      values_[1].Set(text1_, i2);
      values_[2].Set(text2_, i3);
      values_[3].Set(text3_, i4);
      values_[4].Set(text4_, i5);
      values_[5].Set(text5_, i6);
      values_[6].Set(text6_, i7);
      values_[7].Set(text7_, i8);
      values_[8].Set(text8_, i9);
      values_[9].Set(text9_, i10);
      values_[10].Set(text10_, i11);
      values_[11].Set(text11_, i12);
      values_[12].Set(text12_, i13);
      values_[13].Set(text13_, i14);
      values_[14].Set(text14_, i15);
      values_[15].Set(text15_, i16);
      values_[16].Set(text16_, i17);
      values_[17].Set(text17_, i18);
      values_[18].Set(text18_, i19);
      values_[19].Set(text19_, i20);
      return Handle.Invoke(87, values_, (i20 == null || i20.Length > 0) ? 20 : (i19 == null ||
          i19.Length > 0) ? 19 : (i18 == null || i18.Length > 0) ? 18 : (i17 == null || i17.Length >
          0) ? 17 : (i16 == null || i16.Length > 0) ? 16 : (i15 == null || i15.Length > 0) ? 15 :
          (i14 == null || i14.Length > 0) ? 14 : (i13 == null || i13.Length > 0) ? 13 : (i12 == null
          || i12.Length > 0) ? 12 : (i11 == null || i11.Length > 0) ? 11 : (i10 == null ||
          i10.Length > 0) ? 10 : (i9 == null || i9.Length > 0) ? 9 : (i8 == null || i8.Length > 0) ?
          8 : (i7 == null || i7.Length > 0) ? 7 : (i6 == null || i6.Length > 0) ? 6 : (i5 == null ||
          i5.Length > 0) ? 5 : (i4 == null || i4.Length > 0) ? 4 : (i3 == null || i3.Length > 0) ? 3
          : (i2 == null || i2.Length > 0) ? 2 : 1).TakeTextList();
    }
  }

  /// <summary>The texts that are not empty, as an array.</summary>
  /// <param name="i1"><c>i1</c> is the first element even if it is empty, unless all are empty:
  /// then the array is too.</param>
  /// <param name="i2">The texts in their order, without those of <c>i2</c> to <c>i30</c> that are
  /// empty.</param>
  /// <param name="i3"></param>
  /// <param name="i4"></param>
  /// <param name="i5"></param>
  /// <param name="i6"></param>
  /// <param name="i7"></param>
  /// <param name="i8"></param>
  /// <param name="i9"></param>
  /// <param name="i10"></param>
  /// <param name="i11"></param>
  /// <param name="i12"></param>
  /// <param name="i13"></param>
  /// <param name="i14"></param>
  /// <param name="i15"></param>
  /// <param name="i16"></param>
  /// <param name="i17"></param>
  /// <param name="i18"></param>
  /// <param name="i19"></param>
  /// <param name="i20"></param>
  /// <param name="i21"></param>
  /// <param name="i22"></param>
  /// <param name="i23"></param>
  /// <param name="i24"></param>
  /// <param name="i25"></param>
  /// <param name="i26"></param>
  /// <param name="i27"></param>
  /// <param name="i28"></param>
  /// <param name="i29"></param>
  /// <param name="i30">The texts in their order, without those of <c>i2</c> to <c>i30</c> that are
  /// empty.</param>
  /// <returns>For example, <c>ArrayString2("a", "", "c")</c> returns <c>a, c</c>.</returns>
  /// <remarks>
  /// <para>The texts in their order, without those of <c>i2</c> to <c>i30</c> that are empty.
  /// <c>i1</c> is the first element even if it is empty, unless all are empty: then the array is
  /// too. A text is split at every ";;".</para>
  /// </remarks>
  public string[] ArrayString2(string i1, string i2 = "", string i3 = "", string i4 = "",
      string i5 = "", string i6 = "", string i7 = "", string i8 = "", string i9 = "",
      string i10 = "", string i11 = "", string i12 = "", string i13 = "", string i14 = "",
      string i15 = "", string i16 = "", string i17 = "", string i18 = "", string i19 = "",
      string i20 = "", string i21 = "", string i22 = "", string i23 = "", string i24 = "",
      string i25 = "", string i26 = "", string i27 = "", string i28 = "", string i29 = "",
      string i30 = "") {
    fixed (char* text0_ = i1, text1_ = i2, text2_ = i3, text3_ = i4, text4_ = i5, text5_ = i6,
        text6_ = i7, text7_ = i8, text8_ = i9, text9_ = i10, text10_ = i11, text11_ = i12,
        text12_ = i13, text13_ = i14, text14_ = i15, text15_ = i16, text16_ = i17, text17_ = i18,
        text18_ = i19, text19_ = i20, text20_ = i21, text21_ = i22, text22_ = i23, text23_ = i24,
        text24_ = i25, text25_ = i26, text26_ = i27, text27_ = i28, text28_ = i29, text29_ = i30) {
      Value* values_ = stackalloc Value[30];
      values_[0].Set(text0_, i1);
      values_[1].Set(text1_, i2);
      values_[2].Set(text2_, i3);
      values_[3].Set(text3_, i4);
      values_[4].Set(text4_, i5);
      values_[5].Set(text5_, i6);
      values_[6].Set(text6_, i7);
      values_[7].Set(text7_, i8);
      values_[8].Set(text8_, i9);
      values_[9].Set(text9_, i10);
      values_[10].Set(text10_, i11);
      values_[11].Set(text11_, i12);
      values_[12].Set(text12_, i13);
      values_[13].Set(text13_, i14);
      values_[14].Set(text14_, i15);
      values_[15].Set(text15_, i16);
      values_[16].Set(text16_, i17);
      values_[17].Set(text17_, i18);
      values_[18].Set(text18_, i19);
      values_[19].Set(text19_, i20);
      values_[20].Set(text20_, i21);
      values_[21].Set(text21_, i22);
      values_[22].Set(text22_, i23);
      values_[23].Set(text23_, i24);
      values_[24].Set(text24_, i25);
      values_[25].Set(text25_, i26);
      values_[26].Set(text26_, i27);
      values_[27].Set(text27_, i28);
      values_[28].Set(text28_, i29);
      values_[29].Set(text29_, i30);
      return Handle.Invoke(88, values_, (i30 == null || i30.Length > 0) ? 30 : (i29 == null ||
          i29.Length > 0) ? 29 : (i28 == null || i28.Length > 0) ? 28 : (i27 == null || i27.Length >
          0) ? 27 : (i26 == null || i26.Length > 0) ? 26 : (i25 == null || i25.Length > 0) ? 25 :
          (i24 == null || i24.Length > 0) ? 24 : (i23 == null || i23.Length > 0) ? 23 : (i22 == null
          || i22.Length > 0) ? 22 : (i21 == null || i21.Length > 0) ? 21 : (i20 == null ||
          i20.Length > 0) ? 20 : (i19 == null || i19.Length > 0) ? 19 : (i18 == null || i18.Length >
          0) ? 18 : (i17 == null || i17.Length > 0) ? 17 : (i16 == null || i16.Length > 0) ? 16 :
          (i15 == null || i15.Length > 0) ? 15 : (i14 == null || i14.Length > 0) ? 14 : (i13 == null
          || i13.Length > 0) ? 13 : (i12 == null || i12.Length > 0) ? 12 : (i11 == null ||
          i11.Length > 0) ? 11 : (i10 == null || i10.Length > 0) ? 10 : (i9 == null || i9.Length >
          0) ? 9 : (i8 == null || i8.Length > 0) ? 8 : (i7 == null || i7.Length > 0) ? 7 : (i6 ==
          null || i6.Length > 0) ? 6 : (i5 == null || i5.Length > 0) ? 5 : (i4 == null || i4.Length
          > 0) ? 4 : (i3 == null || i3.Length > 0) ? 3 : (i2 == null || i2.Length > 0) ? 2 :
          1).TakeTextList();
    }
  }

  /// <summary>A comma-separated list from last to first.</summary>
  /// <returns>For example, <c>ReverseList("a,b,c")</c> returns <c>"c,b,a,"</c>.</returns>
  /// <remarks>
  /// <para>Each item is followed by ",": "a,b,c" and "a,b,c," give "c,b,a,".</para>
  /// </remarks>
  public string ReverseList(string iList) {
    fixed (char* text0_ = iList) {
      var value_ = new Value();
      value_.Set(text0_, iList);
      return Handle.InvokeText(89, &value_, 1);
    }
  }

  /// <summary>The whole number in a field of a comma-separated list.</summary>
  /// <param name="istr"></param>
  /// <param name="iNum">The field is <c>iNum</c>, counted from 1, and the number is written as
  /// decimal text; halves go to even.</param>
  /// <returns>For example, <c>TrimN("10,20,30", 2)</c> returns <c>"20"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 13 if the field is not a number and 6 if it exceeds
  /// 32 bits.</exception>
  /// <remarks>
  /// <para>The field is <c>iNum</c>, counted from 1, and the number is written as decimal text;
  /// halves go to even. Empty if there is no such field, and for a last field of a single
  /// character: "1,2,3" has no third, "1,2,34" has.</para>
  /// <para>Raises 13 if the field is not a number and 6 if it exceeds 32 bits.</para>
  /// </remarks>
  public string TrimN(string istr, short iNum) {
    fixed (char* text0_ = istr) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, istr);
      values_[1].Set(iNum);
      return Handle.InvokeText(90, values_, 2);
    }
  }

  /// <summary>The characters from last to first.</summary>
  /// <returns>For example, <c>ReverseString("abc")</c> returns <c>"cba"</c>.</returns>
  /// <remarks>
  /// <para>They are UTF-16 code units: surrogates and Thai marks come out in front of what they
  /// belong to.</para>
  /// </remarks>
  public string ReverseString(string iString) {
    fixed (char* text0_ = iString) {
      var value_ = new Value();
      value_.Set(text0_, iString);
      return Handle.InvokeText(91, &value_, 1);
    }
  }

  /// <summary>Shrinks every run of blanks to one.</summary>
  /// <returns>For example, <c>TrimSpaceToOne(" a b ")</c> returns <c>"a b"</c>.</returns>
  /// <remarks>
  /// <para>A blank is U+0020. Blanks at the front and the back are removed, or shrink to one if the
  /// flag is off.</para>
  /// </remarks>
  public string TrimSpaceToOne(string inString, bool TrimFront = true, bool TrimBack = true) {
    fixed (char* text0_ = inString) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, inString);
      values_[1].Set(TrimFront);
      values_[2].Set(TrimBack);
      return Handle.InvokeText(92, values_, TrimBack != true ? 3 : TrimFront != true ? 2 : 1);
    }
  }

  /// <summary>Counts up the number at the end of a key.</summary>
  /// <param name="InputString"></param>
  /// <param name="AddStringNumber">By 1 or by <c>AddStringNumber</c>; its width is kept: "INV0099"
  /// gives "INV0100", "A999" gives "A1000", "A009" and "5" give "A014". An <c>AddStringNumber</c>
  /// that is not above 0 adds nothing. Zeros alone are not a number: "A000" and any other key
  /// without a number are returned with <c>AddStringNumber</c> appended.</param>
  /// <returns>For example, <c>IncreaseString("INV0099")</c> returns <c>"INV0100"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 6 beyond the range of a double.</exception>
  /// <remarks>
  /// <para>By 1 or by <c>AddStringNumber</c>; its width is kept: "INV0099" gives "INV0100", "A999"
  /// gives "A1000", "A009" and "5" give "A014". An <c>AddStringNumber</c> that is not above 0 adds
  /// nothing.</para>
  /// <para>Zeros alone are not a number: "A000" and any other key without a number are returned
  /// with <c>AddStringNumber</c> appended. A number of more than 15 digits is written as by
  /// <c>d2Str</c>. Raises 6 beyond the range of a double.</para>
  /// </remarks>
  public string IncreaseString(string InputString, string AddStringNumber = "") {
    fixed (char* text0_ = InputString, text1_ = AddStringNumber) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, InputString);
      values_[1].Set(text1_, AddStringNumber);
      return Handle.InvokeText(93, values_, (AddStringNumber == null || AddStringNumber.Length > 0)
          ? 2 : 1);
    }
  }

  /// <summary>Pads the number at the end of a text with zeros, for sorting.</summary>
  /// <param name="InputString"></param>
  /// <param name="Length">Raises 5 if the part before the number is longer than <c>Length</c>
  /// characters, and 6 if twice <c>Length</c> exceeds 16 bits and there is a number.</param>
  /// <returns>For example, <c>FormatTextSort("inv12", 8)</c> returns <c>"INV00012"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 if the part before the number is longer than
  /// <c>Length</c> characters, and 6 if twice <c>Length</c> exceeds 16 bits and there is a
  /// number.</exception>
  /// <remarks>
  /// <para>"inv12" at 8 gives "INV00012". The number is the end of the text that <c>StrVal</c>
  /// reads as above 0 from each of its characters on; its front is cut off if it is too
  /// long.</para>
  /// <para>A text without one, or with a "0" at its end, is padded with zeros and a "1" instead,
  /// and only then keeps its case: "abc" at 5 gives "abc01". Raises 5 if the part before the number
  /// is longer than <c>Length</c> characters, and 6 if twice <c>Length</c> exceeds 16 bits and
  /// there is a number.</para>
  /// </remarks>
  public string FormatTextSort(string InputString, short Length) {
    fixed (char* text0_ = InputString) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, InputString);
      values_[1].Set(Length);
      return Handle.InvokeText(94, values_, 2);
    }
  }

  /// <summary>The position of a text in another, from 1; 0 if it is not found.</summary>
  /// <param name="start">It is that of the first <c>SearchString</c> in <c>MainString</c> at or
  /// after <c>start</c>, in UTF-16 code units; 0 also for a <c>start</c> beyond the end. An empty
  /// <c>SearchString</c> is found at <c>start</c>. Raises 5 for a <c>start</c> below 1 and for a
  /// <c>Compare</c> that is not a member of its enumeration. With <c>SearchFromBack</c> the
  /// position of the last one in the whole text; <c>start</c> and <c>Compare</c> have no effect,
  /// and an empty <c>SearchString</c> gives 0.</param>
  /// <param name="MainString">It is that of the first <c>SearchString</c> in <c>MainString</c> at
  /// or after <c>start</c>, in UTF-16 code units; 0 also for a <c>start</c> beyond the end.</param>
  /// <param name="SearchString">It is that of the first <c>SearchString</c> in <c>MainString</c> at
  /// or after <c>start</c>, in UTF-16 code units; 0 also for a <c>start</c> beyond the end. An
  /// empty <c>SearchString</c> is found at <c>start</c>. With <c>SearchFromBack</c> the position of
  /// the last one in the whole text; <c>start</c> and <c>Compare</c> have no effect, and an empty
  /// <c>SearchString</c> gives 0.</param>
  /// <param name="Compare">Raises 5 for a <c>start</c> below 1 and for a <c>Compare</c> that is not
  /// a member of its enumeration. With <c>SearchFromBack</c> the position of the last one in the
  /// whole text; <c>start</c> and <c>Compare</c> have no effect, and an empty <c>SearchString</c>
  /// gives 0.</param>
  /// <param name="SearchFromBack">With <c>SearchFromBack</c> the position of the last one in the
  /// whole text; <c>start</c> and <c>Compare</c> have no effect, and an empty <c>SearchString</c>
  /// gives 0.</param>
  /// <returns>For example, <c>Instr2(1, "Sales sales", "sales")</c> returns <c>7</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 for a <c>start</c> below 1 and for a
  /// <c>Compare</c> that is not a member of its enumeration.</exception>
  /// <remarks>
  /// <para>It is that of the first <c>SearchString</c> in <c>MainString</c> at or after
  /// <c>start</c>, in UTF-16 code units; 0 also for a <c>start</c> beyond the end. An empty
  /// <c>SearchString</c> is found at <c>start</c>. Raises 5 for a <c>start</c> below 1 and for a
  /// <c>Compare</c> that is not a member of its enumeration.</para>
  /// <para>With <c>SearchFromBack</c> the position of the last one in the whole text; <c>start</c>
  /// and <c>Compare</c> have no effect, and an empty <c>SearchString</c> gives 0.</para>
  /// </remarks>
  public int Instr2(int start, string MainString, string SearchString,
      ZQ7CompareMethod Compare = ZQ7CompareMethod.ZQ7CompareBinary, bool SearchFromBack = false) {
    fixed (char* text1_ = MainString, text2_ = SearchString) {
      Value* values_ = stackalloc Value[5];
      values_[0].Set(start);
      values_[1].Set(text1_, MainString);
      values_[2].Set(text2_, SearchString);
      values_[3].Set((int)Compare);
      values_[4].Set(SearchFromBack);
      return Handle.Invoke(95, values_, SearchFromBack ? 5 : Compare !=
          ZQ7CompareMethod.ZQ7CompareBinary ? 4 : 3).TakeLong();
    }
  }

  /// <summary>A random whole number.</summary>
  /// <param name="Low">It is from <c>Low</c> to <c>High</c> + 1; these two come half as often as
  /// the others. <c>High</c> below <c>Low</c> is allowed. Raises 6 if the span <c>High</c> -
  /// <c>Low</c> + 1, or the result, exceeds 32 bits.</param>
  /// <param name="High">It is from <c>Low</c> to <c>High</c> + 1; these two come half as often as
  /// the others. <c>High</c> below <c>Low</c> is allowed. Raises 6 if the span <c>High</c> -
  /// <c>Low</c> + 1, or the result, exceeds 32 bits.</param>
  /// <exception cref="RunTimeException">Raises 6 if the span <c>High</c> - <c>Low</c> + 1, or the
  /// result, exceeds 32 bits.</exception>
  /// <remarks>
  /// <para>It is from <c>Low</c> to <c>High</c> + 1; these two come half as often as the others.
  /// <c>High</c> below <c>Low</c> is allowed. Raises 6 if the span <c>High</c> - <c>Low</c> + 1, or
  /// the result, exceeds 32 bits.</para>
  /// </remarks>
  public int Random(int Low, int High) {
    Value* values_ = stackalloc Value[2];
    values_[0].Set(Low);
    values_[1].Set(High);
    return Handle.Invoke(96, values_, 2).TakeLong();
  }

  /// <summary>Cleans a record key as typed.</summary>
  /// <param name="InputKeyValue"></param>
  /// <param name="PrimaryKeyMode"></param>
  /// <param name="MaxLen"></param>
  /// <param name="AcceptInsideSpace">Drops "'", ";", ",", "%" and line breaks, the blanks around it
  /// and, unless <c>AcceptInsideSpace</c>, those inside.</param>
  /// <param name="NumberOnly"><c>NumberOnly</c> keeps "0" to "9", <c>AutoUpperCase</c> converts to
  /// upper case (any script), <c>AcceptOnlyEnglishCharAndNumber</c> keeps A to Z, a to z and "0" to
  /// "9".</param>
  /// <param name="AutoUpperCase"><c>NumberOnly</c> keeps "0" to "9", <c>AutoUpperCase</c> converts
  /// to upper case (any script), <c>AcceptOnlyEnglishCharAndNumber</c> keeps A to Z, a to z and "0"
  /// to "9".</param>
  /// <param name="AcceptOnlyEnglishCharAndNumber"><c>NumberOnly</c> keeps "0" to "9",
  /// <c>AutoUpperCase</c> converts to upper case (any script),
  /// <c>AcceptOnlyEnglishCharAndNumber</c> keeps A to Z, a to z and "0" to "9".</param>
  /// <param name="AcceptInsideMultiSpace">Runs of blanks inside shrink to one while
  /// <c>AcceptInsideMultiSpace</c> is 0.</param>
  /// <param name="Reserve2"></param>
  /// <param name="Reserve3"></param>
  /// <param name="Reserve4"></param>
  /// <returns>For example, <c>FormatPrimaryKey(" it's a 1% key; ")</c> returns
  /// <c>"itsa1key"</c>.</returns>
  /// <remarks>
  /// <para>Drops "'", ";", ",", "%" and line breaks, the blanks around it and, unless
  /// <c>AcceptInsideSpace</c>, those inside. An option is on only if it is 1; -1, which is true to
  /// other operations, is off.</para>
  /// <para><c>NumberOnly</c> keeps "0" to "9", <c>AutoUpperCase</c> converts to upper case (any
  /// script), <c>AcceptOnlyEnglishCharAndNumber</c> keeps A to Z, a to z and "0" to "9". Runs of
  /// blanks inside shrink to one while <c>AcceptInsideMultiSpace</c> is 0. Blanks beside a line
  /// break stay, as they are cleaned before it is dropped. The other parameters have no effect;
  /// nothing is cut to a length.</para>
  /// </remarks>
  public string FormatPrimaryKey(string InputKeyValue, short PrimaryKeyMode = 0, short MaxLen = 0,
      short AcceptInsideSpace = 0, short NumberOnly = 0, short AutoUpperCase = 0,
      short AcceptOnlyEnglishCharAndNumber = 0, short AcceptInsideMultiSpace = 0,
      short Reserve2 = 0, short Reserve3 = 0, short Reserve4 = 0) {
    fixed (char* text0_ = InputKeyValue) {
      Value* values_ = stackalloc Value[11];
      values_[0].Set(text0_, InputKeyValue);
      values_[1].Set(PrimaryKeyMode);
      values_[2].Set(MaxLen);
      values_[3].Set(AcceptInsideSpace);
      values_[4].Set(NumberOnly);
      values_[5].Set(AutoUpperCase);
      values_[6].Set(AcceptOnlyEnglishCharAndNumber);
      values_[7].Set(AcceptInsideMultiSpace);
      values_[8].Set(Reserve2);
      values_[9].Set(Reserve3);
      values_[10].Set(Reserve4);
      return Handle.InvokeText(97, values_, Reserve4 != 0 ? 11 : Reserve3 != 0 ? 10 : Reserve2 != 0
          ? 9 : AcceptInsideMultiSpace != 0 ? 8 : AcceptOnlyEnglishCharAndNumber != 0 ? 7 :
          AutoUpperCase != 0 ? 6 : NumberOnly != 0 ? 5 : AcceptInsideSpace != 0 ? 4 : MaxLen != 0 ?
          3 : PrimaryKeyMode != 0 ? 2 : 1);
    }
  }

  /// <summary>Cleans a serial number as typed.</summary>
  /// <param name="InputKeyValue"></param>
  /// <param name="MaxLen"><c>MaxLen</c> has no effect.</param>
  /// <param name="AcceptInsideSpace"></param>
  /// <param name="NumberOnly"></param>
  /// <param name="AutoUpperCase"></param>
  /// <param name="AcceptOnlyEnglishCharAndNumber"></param>
  /// <returns>For example, <c>FormatSerialNo(" sn-01 2 ")</c> returns <c>"sn-012"</c>.</returns>
  /// <remarks>
  /// <para><c>FormatPrimaryKey</c> with those options. <c>MaxLen</c> has no effect.</para>
  /// </remarks>
  public string FormatSerialNo(string InputKeyValue, short MaxLen = 30,
      short AcceptInsideSpace = 0, short NumberOnly = 0, short AutoUpperCase = 0,
      short AcceptOnlyEnglishCharAndNumber = 0) {
    fixed (char* text0_ = InputKeyValue) {
      Value* values_ = stackalloc Value[6];
      values_[0].Set(text0_, InputKeyValue);
      values_[1].Set(MaxLen);
      values_[2].Set(AcceptInsideSpace);
      values_[3].Set(NumberOnly);
      values_[4].Set(AutoUpperCase);
      values_[5].Set(AcceptOnlyEnglishCharAndNumber);
      return Handle.InvokeText(98, values_, AcceptOnlyEnglishCharAndNumber != 0 ? 6 : AutoUpperCase
          != 0 ? 5 : NumberOnly != 0 ? 4 : AcceptInsideSpace != 0 ? 3 : MaxLen != 30 ? 2 : 1);
    }
  }

  /// <summary>The letters and digits of a bar code as typed.</summary>
  /// <param name="InputBarCodeValue"></param>
  /// <param name="BarcodeType"><c>BarcodeType</c> has no effect.</param>
  /// <returns>For example, <c>FormatBarCode(" 885-1234 abc ")</c> returns
  /// <c>"8851234ABC"</c>.</returns>
  /// <remarks>
  /// <para>Letters are A to Z, in upper case: " 885-1234 abc " gives "8851234ABC".
  /// <c>BarcodeType</c> has no effect.</para>
  /// </remarks>
  public string FormatBarCode(string InputBarCodeValue, short BarcodeType = 0) {
    fixed (char* text0_ = InputBarCodeValue) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, InputBarCodeValue);
      values_[1].Set(BarcodeType);
      return Handle.InvokeText(99, values_, BarcodeType != 0 ? 2 : 1);
    }
  }

  /// <summary>A network address without leading zeros; empty if it is not one.</summary>
  /// <param name="StringIP"></param>
  /// <param name="ForceIPV4">It has four parts, or six if <c>ForceIPV4</c> is off, and loses its
  /// signs too: "010.001.002.003" gives "10.1.2.3".</param>
  /// <returns>For example, <c>FormatIP("010.001.002.003")</c> returns <c>"10.1.2.3"</c>.</returns>
  /// <remarks>
  /// <para>It has four parts, or six if <c>ForceIPV4</c> is off, and loses its signs too:
  /// "010.001.002.003" gives "10.1.2.3". Empty for any other number of parts, or a part above 256
  /// (256 itself is accepted). Parts are read by <c>StrInt</c>, which raises 6 for one beyond 16
  /// bits.</para>
  /// </remarks>
  public string FormatIP(string StringIP, bool ForceIPV4 = true) {
    fixed (char* text0_ = StringIP) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, StringIP);
      values_[1].Set(ForceIPV4);
      return Handle.InvokeText(100, values_, ForceIPV4 != true ? 2 : 1);
    }
  }

  /// <summary>The EAN-13 check digit of the first 12 characters.</summary>
  /// <returns>For example, <c>GetEAN13ChekDigit("400638133393")</c> returns <c>1</c>.</returns>
  /// <remarks>
  /// <para>0 to 9; -1 if there are fewer characters. Any character but "0" to "9" counts as
  /// 0.</para>
  /// </remarks>
  public short GetEAN13ChekDigit(string sCodice) {
    fixed (char* text0_ = sCodice) {
      var value_ = new Value();
      value_.Set(text0_, sCodice);
      return Handle.Invoke(101, &value_, 1).TakeInteger();
    }
  }

  /// <summary>The ITF-14 check digit of the first 13 characters.</summary>
  /// <returns>For example, <c>GetITF14ChekDigit("1540014128876")</c> returns <c>3</c>.</returns>
  /// <remarks>
  /// <para>ITF-14 is GTIN-14; otherwise as <c>GetEAN13ChekDigit</c>.</para>
  /// </remarks>
  public short GetITF14ChekDigit(string sCodice) {
    fixed (char* text0_ = sCodice) {
      var value_ = new Value();
      value_.Set(text0_, sCodice);
      return Handle.Invoke(102, &value_, 1).TakeInteger();
    }
  }

  /// <summary>Hides a text from a glance, under a password.</summary>
  /// <returns>For example, <c>EncryptBS("abc", "K")</c> returns <c>"*)("</c>.</returns>
  /// <remarks>
  /// <para>The exclusive or of each character's byte with that of the repeated password. It
  /// protects against nothing more and is kept for existing data.</para>
  /// <para>"ABC" with "A" gives the characters 0, 3 and 2. The result may hold any character of the
  /// code page, including 0. Characters go through Windows-874, and one that is not in it counts as
  /// "?". The empty text gives the empty text; raises 6 for more than 32767 characters, 11 for an
  /// empty password.</para>
  /// </remarks>
  public string EncryptBS(string StringInput, string PassWord) {
    fixed (char* text0_ = StringInput, text1_ = PassWord) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, StringInput);
      values_[1].Set(text1_, PassWord);
      return Handle.InvokeText(103, values_, 2);
    }
  }

  /// <summary>Undoes <c>EncryptBS</c>.</summary>
  /// <returns>For example, <c>DecryptBS("*)(", "K")</c> returns <c>"abc"</c>.</returns>
  /// <remarks>
  /// <para>The same as <c>EncryptBS</c>, which undoes itself.</para>
  /// </remarks>
  public string DecryptBS(string EncryptedTextInput, string PassWord) {
    fixed (char* text0_ = EncryptedTextInput, text1_ = PassWord) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, EncryptedTextInput);
      values_[1].Set(text1_, PassWord);
      return Handle.InvokeText(104, values_, 2);
    }
  }

  /// <summary>Enciphers a text with the host's block cipher.</summary>
  /// <returns>For example, <c>Encrypt("abc", "")</c> returns <c>"abc"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 429 if there is no cipher, and what the cipher
  /// raises.</exception>
  /// <remarks>
  /// <para>The cipher is made anew for the call. Returns the text itself if it or the password is
  /// empty. Characters go through Windows-874, and one that is not in it becomes "?". Raises 429 if
  /// there is no cipher, and what the cipher raises.</para>
  /// </remarks>
  public string Encrypt(string StringInput, string PassWord) {
    fixed (char* text0_ = StringInput, text1_ = PassWord) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, StringInput);
      values_[1].Set(text1_, PassWord);
      return Handle.InvokeText(105, values_, 2);
    }
  }

  /// <summary>Deciphers a text that <c>Encrypt</c> enciphered.</summary>
  /// <param name="EncryptedTextInput">Returns <c>EncryptedTextInput</c> itself if <c>Encrypt</c>
  /// did not write it, or the password is wrong as far as the cipher can tell.</param>
  /// <param name="PassWord"></param>
  /// <exception cref="RunTimeException">Raises as <c>Encrypt</c> does.</exception>
  /// <remarks>
  /// <para>Returns <c>EncryptedTextInput</c> itself if <c>Encrypt</c> did not write it, or the
  /// password is wrong as far as the cipher can tell.</para>
  /// <para>Characters of code 0 are removed from the result in every case: they are the padding of
  /// block ciphers. Raises as <c>Encrypt</c> does.</para>
  /// </remarks>
  public string Decrypt(string EncryptedTextInput, string PassWord) {
    fixed (char* text0_ = EncryptedTextInput, text1_ = PassWord) {
      Value* values_ = stackalloc Value[2];
      values_[0].Set(text0_, EncryptedTextInput);
      values_[1].Set(text1_, PassWord);
      return Handle.InvokeText(106, values_, 2);
    }
  }

  /// <summary>The MD5 digest of a text.</summary>
  /// <param name="strMessage">The digest (RFC 1321) of the Windows-874 bytes of <c>strMessage</c>,
  /// as 32 hexadecimal digits in lower case.</param>
  /// <returns>For example, <c>CalculateMD5("abc")</c> returns
  /// <c>"900150983cd24fb0d6963f7d28e17f72"</c>.</returns>
  /// <remarks>
  /// <para>The digest (RFC 1321) of the Windows-874 bytes of <c>strMessage</c>, as 32 hexadecimal
  /// digits in lower case. A character that is not in the code page counts as "?". It detects
  /// accidental changes only: anyone can make two texts with the same digest.</para>
  /// </remarks>
  public string CalculateMD5(string strMessage) {
    fixed (char* text0_ = strMessage) {
      var value_ = new Value();
      value_.Set(text0_, strMessage);
      return Handle.InvokeText(107, &value_, 1);
    }
  }

  /// <summary>Starts a program, and waits for its end if asked to.</summary>
  /// <param name="Program"><c>Program</c> is a path, or the name of an installed program.
  /// <c>WaitSeconds</c> is at most 1000000; any other value raises 5, and so does an empty
  /// <c>Program</c>.</param>
  /// <param name="Arguments">It is started directly, never through a shell: each of the
  /// <c>Arguments</c> reaches it as it is.</param>
  /// <param name="WaitSeconds">Returns the process number at once if <c>WaitSeconds</c> is 0; the
  /// program then outlives the host. <c>WaitSeconds</c> is at most 1000000; any other value raises
  /// 5, and so does an empty <c>Program</c>.</param>
  /// <param name="Folder">It reads nothing, writes where the host writes, and starts in the
  /// <c>Folder</c>, or in the host's own.</param>
  /// <returns>For example, <c>ExecuteProgram("true", [], 5)</c> returns <c>0</c>.</returns>
  /// <exception cref="RunTimeException">Raises 53 for a program and 76 for a folder that do not
  /// exist, 70 for what may not be executed.</exception>
  /// <remarks>
  /// <para><c>Program</c> is a path, or the name of an installed program. It is started directly,
  /// never through a shell: each of the <c>Arguments</c> reaches it as it is. It reads nothing,
  /// writes where the host writes, and starts in the <c>Folder</c>, or in the host's own.</para>
  /// <para>Returns the process number at once if <c>WaitSeconds</c> is 0; the program then outlives
  /// the host. Otherwise returns the exit status, 128 and the signal's number if a signal ended it.
  /// A program that takes longer is told to end, ended two seconds later, and 70 is raised.
  /// <c>WaitSeconds</c> is at most 1000000; any other value raises 5, and so does an empty
  /// <c>Program</c>. Raises 53 for a program and 76 for a folder that do not exist, 70 for what may
  /// not be executed.</para>
  /// </remarks>
  public int ExecuteProgram(string Program, string[] Arguments = null, double WaitSeconds = 0,
      string Folder = "") {
    using (var memory_ = new NativeMemory())
    fixed (char* text0_ = Program, text3_ = Folder) {
      Value* values_ = stackalloc Value[4];
      values_[0].Set(text0_, Program);
      values_[1].Set(memory_.List(Arguments), Arguments);
      values_[2].Set(WaitSeconds);
      values_[3].Set(text3_, Folder);
      return Handle.Invoke(108, values_, (Folder == null || Folder.Length > 0) ? 4 : WaitSeconds !=
          0 ? 3 : Arguments != null ? 2 : 1).TakeLong();
    }
  }

  /// <summary>Opens an address with the user's browser.</summary>
  /// <param name="Address"><c>Address</c> begins with "http://", "https://", "mailto:" or "file:";
  /// what an address cannot hold, such as Thai letters, is percent-encoded.</param>
  /// <exception cref="RunTimeException">Raises 429 if there is no display.</exception>
  /// <remarks>
  /// <para><c>Address</c> begins with "http://", "https://", "mailto:" or "file:"; what an address
  /// cannot hold, such as Thai letters, is percent-encoded. A file must exist and be a document or
  /// a folder, not a program. Any other address raises 5. Raises 429 if there is no display.</para>
  /// </remarks>
  public void OpenBrowser(string Address) {
    fixed (char* text0_ = Address) {
      var value_ = new Value();
      value_.Set(text0_, Address);
      Handle.Invoke(109, &value_, 1);
    }
  }

  /// <summary>Begins a message in the user's mail program.</summary>
  /// <param name="To"><c>To</c> has addresses separated by ";" or ","; nothing in it can attach a
  /// file.</param>
  /// <param name="Subject"></param>
  /// <param name="Body"></param>
  /// <param name="Attachments">Raises 53 for one of the <c>Attachments</c> that does not exist, 429
  /// if there is no display.</param>
  /// <exception cref="RunTimeException">Raises 53 for one of the <c>Attachments</c> that does not
  /// exist, 429 if there is no display.</exception>
  /// <remarks>
  /// <para><c>To</c> has addresses separated by ";" or ","; nothing in it can attach a file. Raises
  /// 53 for one of the <c>Attachments</c> that does not exist, 429 if there is no display.</para>
  /// </remarks>
  public void OpenMail(string To, string Subject = "", string Body = "",
      string[] Attachments = null) {
    using (var memory_ = new NativeMemory())
    fixed (char* text0_ = To, text1_ = Subject, text2_ = Body) {
      Value* values_ = stackalloc Value[4];
      values_[0].Set(text0_, To);
      values_[1].Set(text1_, Subject);
      values_[2].Set(text2_, Body);
      values_[3].Set(memory_.List(Attachments), Attachments);
      Handle.Invoke(110, values_, Attachments != null ? 4 : (Body == null || Body.Length > 0) ? 3 :
          (Subject == null || Subject.Length > 0) ? 2 : 1);
    }
  }

  /// <summary>Opens a new appointment in the user's calendar.</summary>
  /// <param name="Subject"></param>
  /// <param name="StartDate">Raises 5 if <c>EndDate</c> is before <c>StartDate</c>, 429 if there is
  /// no display.</param>
  /// <param name="EndDate">Raises 5 if <c>EndDate</c> is before <c>StartDate</c>, 429 if there is
  /// no display.</param>
  /// <param name="Place"></param>
  /// <param name="Body"></param>
  /// <exception cref="RunTimeException">Raises 5 if <c>EndDate</c> is before <c>StartDate</c>, 429
  /// if there is no display.</exception>
  /// <remarks>
  /// <para>The dates are local and have a time of day; the appointment (RFC 5545) goes to the
  /// calendar in UTC, in a file that only the user may read. Raises 5 if <c>EndDate</c> is before
  /// <c>StartDate</c>, 429 if there is no display.</para>
  /// </remarks>
  public void OpenCalendar(string Subject, DateTime StartDate, DateTime EndDate, string Place = "",
      string Body = "") {
    fixed (char* text0_ = Subject, text3_ = Place, text4_ = Body) {
      Value* values_ = stackalloc Value[5];
      values_[0].Set(text0_, Subject);
      values_[1].Set(StartDate);
      values_[2].Set(EndDate);
      values_[3].Set(text3_, Place);
      values_[4].Set(text4_, Body);
      Handle.Invoke(111, values_, (Body == null || Body.Length > 0) ? 5 : (Place == null ||
          Place.Length > 0) ? 4 : 3);
    }
  }

  /// <summary>Writes a picture to a JPEG file.</summary>
  /// <param name="Picture"><c>Picture</c> is one that <c>PrintObject</c> prints; transparent parts
  /// become white.</param>
  /// <param name="FileName"></param>
  /// <param name="Quality"><c>Quality</c> is 1 to 100; any other raises 5, and so does no
  /// picture.</param>
  /// <exception cref="RunTimeException">Raises 481 if the picture is damaged, has a side of more
  /// than 65500 pixels or more than 100 million in all, 429 without the printing module, 57, 61,
  /// 70, 75 or 76 if the file cannot be written.</exception>
  /// <remarks>
  /// <para><c>Picture</c> is one that <c>PrintObject</c> prints; transparent parts become white. A
  /// JPEG is decoded and written anew. Its density is kept, what else the file told is not: the
  /// place where a photo was taken, or which side is up. The file is written whole or not at all,
  /// in place of one that exists.</para>
  /// <para><c>Quality</c> is 1 to 100; any other raises 5, and so does no picture. Raises 481 if
  /// the picture is damaged, has a side of more than 65500 pixels or more than 100 million in all,
  /// 429 without the printing module, 57, 61, 70, 75 or 76 if the file cannot be written.</para>
  /// </remarks>
  public void SavePictureAsJPEG(PrintPicture Picture, string FileName, short Quality = 75) {
    fixed (char* text1_ = FileName) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(Picture);
      values_[1].Set(text1_, FileName);
      values_[2].Set(Quality);
      Handle.Invoke(126, values_, Quality != 75 ? 3 : 2);
      GC.KeepAlive(Picture);
    }
  }

  /// <summary>Returns the name of the computer, without its domain.</summary>
  /// <returns>For example, <c>GetComputerName()</c> returns <c>"SHOP-01"</c>.</returns>
  public string GetComputerName() => Handle.InvokeText(112, null, 0);

  /// <summary>Returns the serial number of the disk that holds a path, as its maker wrote
  /// it.</summary>
  /// <param name="Path"><c>Path</c> need not exist.</param>
  /// <returns>For example, <c>GetDiskSerialNumber()</c> returns <c>"S4EVNX0N123456"</c>.</returns>
  /// <remarks>
  /// <para><c>Path</c> need not exist. Of several disks under one file system it is the first.
  /// Empty if the disk does not tell, or the path is on a network.</para>
  /// </remarks>
  public string GetDiskSerialNumber(string Path = "C:") {
    fixed (char* text0_ = Path) {
      var value_ = new Value();
      value_.Set(text0_, Path);
      return Handle.InvokeText(113, &value_, Path != "C:" ? 1 : 0);
    }
  }

  /// <summary>Returns the serial number of the volume that holds a path, eight hexadecimal
  /// digits.</summary>
  /// <param name="Path"><c>Path</c> need not exist.</param>
  /// <returns>For example, <c>GetVolumeSerialNumber("C:\\srv\\shop")</c> returns
  /// <c>"1A2B3C4D"</c>.</returns>
  /// <remarks>
  /// <para>It changes when the volume is formatted. FAT's "1A2B-3C4D" is "1A2B3C4D", of NTFS it is
  /// the last eight digits; longer ones of other file systems are folded to eight. <c>Path</c> need
  /// not exist. Empty if there is none, or the path is on a network.</para>
  /// </remarks>
  public string GetVolumeSerialNumber(string Path = "C:") {
    fixed (char* text0_ = Path) {
      var value_ = new Value();
      value_.Set(text0_, Path);
      return Handle.InvokeText(114, &value_, Path != "C:" ? 1 : 0);
    }
  }

  /// <summary>Returns a property of the machine's parts: a text for each part.</summary>
  /// <param name="ClassName"></param>
  /// <param name="PropertyName"></param>
  /// <param name="Condition">A <c>Condition</c> such as "DeviceID=C:" chooses parts by another
  /// property, in any case of A to Z.</param>
  /// <returns>For example, <c>QueryManagement("Win32_OperatingSystem", "Version",
  /// "Caption=unknown")</c> returns <c></c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 if it has no name or no "=", 438 for a class or a
  /// property that does not exist.</exception>
  /// <remarks>
  /// <para>The classes are "Win32_ComputerSystem", "Win32_BIOS", "Win32_BaseBoard",
  /// "Win32_Processor", "Win32_DiskDrive", "Win32_LogicalDisk", "Win32_NetworkAdapter" and
  /// "Win32_OperatingSystem"; docs/system.md has their properties. The case of names does not
  /// matter. What is not known is the empty text.</para>
  /// <para>A <c>Condition</c> such as "DeviceID=C:" chooses parts by another property, in any case
  /// of A to Z. Raises 5 if it has no name or no "=", 438 for a class or a property that does not
  /// exist.</para>
  /// </remarks>
  public string[] QueryManagement(string ClassName, string PropertyName, string Condition = "") {
    fixed (char* text0_ = ClassName, text1_ = PropertyName, text2_ = Condition) {
      Value* values_ = stackalloc Value[3];
      values_[0].Set(text0_, ClassName);
      values_[1].Set(text1_, PropertyName);
      values_[2].Set(text2_, Condition);
      return Handle.Invoke(115, values_, (Condition == null || Condition.Length > 0) ? 3 :
          2).TakeTextList();
    }
  }

  /// <summary>Returns the path of a folder of the user's or the machine's; it need not
  /// exist.</summary>
  /// <returns>For example, <c>GetSpecialFolder(CSIDL_FONTS)</c> returns
  /// <c>"C:\usr\share\fonts"</c>.</returns>
  /// <exception cref="RunTimeException">Raises 5 for a number that is not a member of the
  /// enumeration.</exception>
  /// <remarks>
  /// <para>Empty if there is no such folder. Raises 5 for a number that is not a member of the
  /// enumeration.</para>
  /// </remarks>
  public string GetSpecialFolder(VirtualFolder Folder) {
    var value_ = new Value();
    value_.Set((int)Folder);
    return Handle.InvokeText(116, &value_, 1);
  }

  /// <summary>Returns the version of a program or library, empty if it has none.</summary>
  /// <exception cref="RunTimeException">Raises 53 for a file that does not exist, 75 for a folder,
  /// 70 if it may not be read, or the package database does not answer in time.</exception>
  /// <remarks>
  /// <para>That is the version in a file of Windows, such as "1.2.3.4"; of any other file that of
  /// the Debian package to which it belongs. Raises 53 for a file that does not exist, 75 for a
  /// folder, 70 if it may not be read, or the package database does not answer in time.</para>
  /// </remarks>
  public string GetFileVersion(string Path) {
    fixed (char* text0_ = Path) {
      var value_ = new Value();
      value_.Set(text0_, Path);
      return Handle.InvokeText(117, &value_, 1);
    }
  }

  /// <summary>The date and time of a server of the network.</summary>
  /// <param name="ServerName"><c>ServerName</c> is a name or an address, and perhaps a port:
  /// "time.example", "10.0.0.1:123", "[::1]:123".</param>
  /// <exception cref="RunTimeException">Raises 68 if nothing answers, after eight seconds at
  /// most.</exception>
  /// <remarks>
  /// <para>It is asked by SNTP, and its answer is converted to the local time zone, to the second;
  /// the machine's own clock plays no part. <c>ServerName</c> is a name or an address, and perhaps
  /// a port: "time.example", "10.0.0.1:123", "[::1]:123". Any other text raises 5. Raises 68 if
  /// nothing answers, after eight seconds at most.</para>
  /// </remarks>
  public DateTime getRemoteTOD(string ServerName) {
    fixed (char* text0_ = ServerName) {
      var value_ = new Value();
      value_.Set(text0_, ServerName);
      return Handle.Invoke(120, &value_, 1).TakeDate();
    }
  }

  /// <summary>Sends a message through a mail server.</summary>
  /// <param name="Server"></param>
  /// <param name="Port">Raises 5 for a text that is not an address in ASCII, for a line break in
  /// any text but <c>Body</c>, and for a <c>Port</c> outside 1 to 65535; 53 for an attachment that
  /// does not exist; 68 if no server answers in time; 70 if the connection is not secure or the
  /// log-in fails; 57 if the server refuses the message or a recipient, and nobody gets it then;
  /// 429 if the library's module for mail is missing.</param>
  /// <param name="Security"></param>
  /// <param name="User">An empty <c>User</c> does not log in.</param>
  /// <param name="Password">Without security a <c>Password</c> is accepted for this machine
  /// alone.</param>
  /// <param name="From"><c>From</c> is one such address.</param>
  /// <param name="To"><c>To</c>, <c>CC</c> and <c>BCC</c> have addresses separated by ";" or ",",
  /// each with or without a name: "Somchai &lt;s@shop.example&gt;"; a name with a "," is in
  /// quotation marks.</param>
  /// <param name="Subject"></param>
  /// <param name="Body"><c>Body</c> is HTML if <c>IsHtml</c>. Raises 5 for a text that is not an
  /// address in ASCII, for a line break in any text but <c>Body</c>, and for a <c>Port</c> outside
  /// 1 to 65535; 53 for an attachment that does not exist; 68 if no server answers in time; 70 if
  /// the connection is not secure or the log-in fails; 57 if the server refuses the message or a
  /// recipient, and nobody gets it then; 429 if the library's module for mail is missing.</param>
  /// <param name="Attachments"><c>Attachments</c> are path texts.</param>
  /// <param name="CC"><c>To</c>, <c>CC</c> and <c>BCC</c> have addresses separated by ";" or ",",
  /// each with or without a name: "Somchai &lt;s@shop.example&gt;"; a name with a "," is in
  /// quotation marks.</param>
  /// <param name="BCC"><c>To</c>, <c>CC</c> and <c>BCC</c> have addresses separated by ";" or ",",
  /// each with or without a name: "Somchai &lt;s@shop.example&gt;"; a name with a "," is in
  /// quotation marks. Who is named twice gets the message once, and nobody sees who is in
  /// <c>BCC</c>.</param>
  /// <param name="IsHtml"><c>Body</c> is HTML if <c>IsHtml</c>.</param>
  /// <exception cref="RunTimeException">Raises 5 for a text that is not an address in ASCII, for a
  /// line break in any text but <c>Body</c>, and for a <c>Port</c> outside 1 to 65535; 53 for an
  /// attachment that does not exist; 68 if no server answers in time; 70 if the connection is not
  /// secure or the log-in fails; 57 if the server refuses the message or a recipient, and nobody
  /// gets it then; 429 if the library's module for mail is missing.</exception>
  /// <remarks>
  /// <para><c>To</c>, <c>CC</c> and <c>BCC</c> have addresses separated by ";" or ",", each with or
  /// without a name: "Somchai &lt;s@shop.example&gt;"; a name with a "," is in quotation marks.
  /// <c>From</c> is one such address. Who is named twice gets the message once, and nobody sees who
  /// is in <c>BCC</c>. <c>Attachments</c> are path texts. <c>Body</c> is HTML if
  /// <c>IsHtml</c>.</para>
  /// <para>A connection is secure or not made: the server's certificate and name are checked, and a
  /// server without STARTTLS is refused. Without security a <c>Password</c> is accepted for this
  /// machine alone. An empty <c>User</c> does not log in.</para>
  /// <para>Raises 5 for a text that is not an address in ASCII, for a line break in any text but
  /// <c>Body</c>, and for a <c>Port</c> outside 1 to 65535; 53 for an attachment that does not
  /// exist; 68 if no server answers in time; 70 if the connection is not secure or the log-in
  /// fails; 57 if the server refuses the message or a recipient, and nobody gets it then; 429 if
  /// the library's module for mail is missing.</para>
  /// </remarks>
  public void SendMail(string Server, int Port, ZQ7ConnectionSecurity Security, string User,
      string Password, string From, string To, string Subject, string Body,
      string[] Attachments = null, string CC = "", string BCC = "", bool IsHtml = false) {
    using (var memory_ = new NativeMemory())
    fixed (char* text0_ = Server, text3_ = User, text4_ = Password, text5_ = From, text6_ = To,
        text7_ = Subject, text8_ = Body, text10_ = CC, text11_ = BCC) {
      Value* values_ = stackalloc Value[13];
      values_[0].Set(text0_, Server);
      values_[1].Set(Port);
      values_[2].Set((int)Security);
      values_[3].Set(text3_, User);
      values_[4].Set(text4_, Password);
      values_[5].Set(text5_, From);
      values_[6].Set(text6_, To);
      values_[7].Set(text7_, Subject);
      values_[8].Set(text8_, Body);
      values_[9].Set(memory_.List(Attachments), Attachments);
      values_[10].Set(text10_, CC);
      values_[11].Set(text11_, BCC);
      values_[12].Set(IsHtml);
      Handle.Invoke(121, values_, IsHtml ? 13 : (BCC == null || BCC.Length > 0) ? 12 : (CC == null
          || CC.Length > 0) ? 11 : Attachments != null ? 10 : 9);
    }
  }
}

/// <summary>A picture for <c>PrintObject</c>, with its own size.</summary>
public sealed unsafe partial class PrintPicture : ZQ7Object {

  /// <summary>The width in millimetres.</summary>
  public float Width => Handle.Get(1).TakeSingle();

  /// <summary>The height in millimetres.</summary>
  public float Height => Handle.Get(2).TakeSingle();
}

/// <summary>A serial line, for the operations of <c>PeripheralObject</c>.</summary>
/// <remarks>
/// <para>A communications control: one serial line, chosen, set up, opened, written to and closed
/// by setting its properties in that order. A host may bring its own. A property that cannot be set
/// raises a <c>RunTimeError</c> whose number and text reach the user.</para>
/// </remarks>
public sealed unsafe partial class SerialPort : ZQ7Object {
  /// <summary>Makes an instance with the machine's services or the host's.</summary>
  public SerialPort(Services services = null)
      : base(ObjectHandle.Create("SerialPort", services)) {}

  /// <summary>The number of the port, from 1.</summary>
  public short CommPort {
    set {
      var value_ = new Value();
      value_.Set(value);
      Handle.Set(1, &value_);
    }
  }

  /// <summary>Baud, parity, data bits and stop bits.</summary>
  /// <remarks>
  /// <para>Such as "9600,N,8,1".</para>
  /// </remarks>
  public string Settings {
    set {
      var value_ = new Value();
      fixed (char* text_ = value) {
        value_.Set(text_, value);
        Handle.Set(2, &value_);
      }
    }
  }

  /// <summary>How many characters one read returns.</summary>
  /// <remarks>
  /// <para>0 means all that have arrived.</para>
  /// </remarks>
  public short InputLen {
    set {
      var value_ = new Value();
      value_.Set(value);
      Handle.Set(3, &value_);
    }
  }

  /// <summary>Whether the port is open.</summary>
  public bool PortOpen {
    get => Handle.Get(4).TakeBoolean();
    set {
      var value_ = new Value();
      value_.Set(value);
      Handle.Set(4, &value_);
    }
  }

  /// <summary>The text to write.</summary>
  /// <remarks>
  /// <para>Writes <c>text</c> to the open port.</para>
  /// </remarks>
  public string Output {
    set {
      var value_ = new Value();
      fixed (char* text_ = value) {
        value_.Set(text_, value);
        Handle.Set(5, &value_);
      }
    }
  }
}


// --- The C interface: include/zq7standard.h ---

/// An argument or a result.
[StructLayout(LayoutKind.Explicit, Size = 24)]
internal unsafe struct Value {
  private const int Null = 1, TextTag = 2, IntegerTag = 3, LongTag = 4, SingleTag = 5,
                    DoubleTag = 6, BooleanTag = 7, DateTag = 8, CurrencyTag = 9, TextListTag = 10,
                    ObjectTag = 11;
  private const int MillisecondsPerDay = 86400000;
  private const long DayZero = 599264352000000000;  // 1899-12-30

  [FieldOffset(0)] private int _tag;  // 0 is an argument that is left out
  [FieldOffset(4)] private int _owned;
  [FieldOffset(8)] private int _integer;
  [FieldOffset(8)] private double _number;
  [FieldOffset(8)] private long _scaled;
  [FieldOffset(8)] private void* _pointer;
  [FieldOffset(16)] private ulong _length;

  internal void Set(byte value) => SetInteger(IntegerTag, value);
  internal void Set(short value) => SetInteger(IntegerTag, value);
  internal void Set(int value) => SetInteger(LongTag, value);
  internal void Set(bool value) => SetInteger(BooleanTag, value ? 1 : 0);
  internal void Set(float value) => SetNumber(SingleTag, value);
  internal void Set(double value) => SetNumber(DoubleTag, value);
  internal void Omit() => _tag = 0;
  internal void SetNull() => _tag = Null;

  /// Before day 0 the time of day counts forward from the whole day too. It is cut to the
  /// millisecond, so that it never rounds up to the next day. The library refuses a year before
  /// 100 itself.
  internal void Set(DateTime value) {
    long ticks = value.Ticks - DayZero;
    long time = ticks % TimeSpan.TicksPerDay;
    if (time < 0) time += TimeSpan.TicksPerDay;
    long day = (ticks - time) / TimeSpan.TicksPerDay;
    double fraction = (time - time % TimeSpan.TicksPerMillisecond) / (double)TimeSpan.TicksPerDay;
    SetNumber(DateTag, day < 0 ? day - fraction : day + fraction);
  }

  /// An amount out of range goes over as a double, so that the library refuses it.
  internal void Set(decimal value) {
    try {
      _scaled = decimal.ToOACurrency(value);
      _tag = CurrencyTag;
    } catch (OverflowException) {
      Set((double)value);
    }
  }

  /// `text` is `value`, pinned. Null is left out.
  internal void Set(char* text, string value) {
    _tag = value == null ? 0 : TextTag;
    _pointer = text;
    _length = value == null ? 0 : (ulong)value.Length;
  }

  /// `list` is `texts` in memory of the caller's. Null is left out.
  internal void Set(Value* list, string[] texts) {
    _tag = texts == null ? 0 : TextListTag;
    _pointer = list;
    _length = texts == null ? 0 : (ulong)texts.Length;
  }

  /// The caller keeps `value` alive during the call.
  internal void Set(ZQ7Object value) {
    _tag = value == null ? Null : ObjectTag;
    if (value != null) _pointer = (void*)value.Handle.Open();
  }

  internal byte TakeByte() => (byte)_integer;
  internal short TakeInteger() => (short)_integer;
  internal int TakeLong() => _integer;
  internal bool TakeBoolean() => _integer != 0;
  internal float TakeSingle() => (float)_number;
  internal double TakeDouble() => _number;
  internal decimal TakeCurrency() => decimal.FromOACurrency(_scaled);

  internal DateTime TakeDate() {
    double day = Math.Truncate(_number);
    long milliseconds = (long)Math.Round(Math.Abs(_number - day) * MillisecondsPerDay);
    return new DateTime(DayZero + (long)day * TimeSpan.TicksPerDay +
                        Math.Min(milliseconds, MillisecondsPerDay - 1) *
                            TimeSpan.TicksPerMillisecond);
  }

  internal string TakeText() {
    string text = Copy();
    Clear();
    return text;
  }

  internal string[] TakeTextList() {
    var texts = new string[_length];
    for (int i = 0; i < texts.Length; ++i) texts[i] = ((Value*)_pointer)[i].Copy();
    Clear();
    return texts;
  }

  private string Copy() => new string((char*)_pointer, 0, (int)_length);

  private void Clear() {
    if (_owned == 0) return;
    fixed (Value* value = &this) Native.zq7_value_clear(value);
  }

  private void SetInteger(int tag, int value) {
    _tag = tag;
    _integer = value;
  }

  private void SetNumber(int tag, double value) {
    _tag = tag;
    _number = value;
  }
}

internal unsafe struct NativeError {
#pragma warning disable 649  // the library fills them
  internal int Number;
  internal byte* Message;
  internal byte* Text;
  internal byte* ClassName;
  internal byte* Operation;
  internal byte* Parameter;
  internal char* Input;
  internal ulong InputLength;
#pragma warning restore 649
}

internal struct NativeDrive {
  internal byte Letter;
  internal IntPtr Folder;
}

internal struct NativeSerialDevice {
  internal int Port;
  internal IntPtr Device;
}

/// The beginning of a `zq7_member`.
internal struct NativeMember {
#pragma warning disable 649
  internal IntPtr Name;
  internal int Number;
#pragma warning restore 649
}

/// A clock, a convention, a message box or an event sink.
internal struct OneFunction {
  internal UIntPtr Size;
  internal IntPtr Context, Release, First;
}

internal struct ThreeFunctions {
  internal OneFunction First;
  internal IntPtr Second, Third;
}

internal struct SixFunctions {
  internal OneFunction First;
  internal IntPtr Second, Third, Fourth, Fifth, Sixth;
}

internal unsafe struct ServiceTable {
  internal UIntPtr Size;
  internal uint Flags;
  internal OneFunction* Clock, Convention, MessageBox;
  internal NativeDrive* Drives;
  internal UIntPtr DriveCount;
  internal NativeSerialDevice* SerialDevices;
  internal UIntPtr SerialDeviceCount;
}

internal static unsafe class Native {
  internal const string Library = "libZQ7StandardC.so.0.1";
  internal const int Version = 100;

  [DllImport(Library)]
  internal static extern int zq7_version();
  [DllImport(Library)]
  internal static extern void zq7_value_clear(Value* value);
  [DllImport(Library)]
  internal static extern NativeError* zq7_last_error();
  [DllImport(Library)]
  internal static extern void zq7_fail(int number, byte[] text);
  [DllImport(Library)]
  internal static extern int zq7_services_create(ServiceTable* table, out IntPtr services);
  [DllImport(Library)]
  internal static extern void zq7_services_release(IntPtr services);
  [DllImport(Library)]
  internal static extern int zq7_create(byte[] className, IntPtr services, out IntPtr handle);
  [DllImport(Library)]
  internal static extern int zq7_wrap_serial_port(SixFunctions* table, out IntPtr handle);
  [DllImport(Library)]
  internal static extern int zq7_wrap_picture(ThreeFunctions* table, out IntPtr handle);
  [DllImport(Library)]
  internal static extern int zq7_picture_of_file(Value* path, IntPtr services, out IntPtr handle);
  [DllImport(Library)]
  internal static extern void zq7_release(IntPtr handle);
  [DllImport(Library)]
  internal static extern int zq7_invoke(IntPtr handle, int number, Value* arguments, UIntPtr count,
                                        Value* result);
  [DllImport(Library)]
  internal static extern int zq7_invoke_text(IntPtr handle, int number, Value* arguments,
                                             UIntPtr count, char* buffer, UIntPtr capacity,
                                             Value* result);
  [DllImport(Library)]
  internal static extern int zq7_get(IntPtr handle, int number, Value* value);
  [DllImport(Library)]
  internal static extern int zq7_set(IntPtr handle, int number, Value* value);
  [DllImport(Library)]
  internal static extern int zq7_subscribe(IntPtr handle, OneFunction* sink,
                                           out IntPtr subscription);
  [DllImport(Library)]
  internal static extern void zq7_unsubscribe(IntPtr subscription);

  internal static string Utf8(byte* text) {
    int length = 0;
    while (text[length] != 0) ++length;
    return Encoding.UTF8.GetString(text, length);
  }

  internal static byte[] Utf8(string text) => Encoding.UTF8.GetBytes(text + "\0");
}

/// Memory for a table that the library copies.
internal sealed unsafe class NativeMemory : IDisposable {
  private readonly List<IntPtr> _blocks = new List<IntPtr>();

  internal IntPtr Utf8(string text) {
    byte[] bytes = Native.Utf8(text);
    IntPtr block = Block(bytes.Length);
    Marshal.Copy(bytes, 0, block, bytes.Length);
    return block;
  }

  /// The texts as values; a null among them is the empty text. Null for no list.
  internal Value* List(string[] texts) {
    if (texts == null) return null;
    var values = (Value*)Block((texts.Length + 1) * sizeof(Value));
    for (int i = 0; i < texts.Length; ++i) {
      string text = texts[i] ?? "";
      var units = (char*)Block((text.Length + 1) * sizeof(char));
      for (int j = 0; j < text.Length; ++j) units[j] = text[j];
      values[i] = new Value();
      values[i].Set(units, text);
    }
    return values;
  }

  private IntPtr Block(int size) {
    IntPtr block = Marshal.AllocHGlobal(size);
    _blocks.Add(block);
    return block;
  }

  public void Dispose() => _blocks.ForEach(Marshal.FreeHGlobal);
}

/// Turns statuses into exceptions, and exceptions of the host's functions into failures.
internal static unsafe class Failures {
  private const int AutomationError = 440;

  /// What a host's function threw in the course of the calls that this thread is in.
  [ThreadStatic] private static Exception t_thrown;
  /// Whether any thread ever had one: a thread's own variable costs more to read.
  private static volatile bool s_anyThrown;

  /// Before a call: forgets what earlier ones swallowed.
  internal static void Begin() {
    if (s_anyThrown) t_thrown = null;
  }

  internal static void Check(int status) {
    if (status != 0) Throw();
  }

  internal static void Throw() {
    Exception thrown = t_thrown;
    t_thrown = null;
    NativeError* error = Native.zq7_last_error();
    if (thrown != null && Number(thrown) == error->Number &&
        Text(thrown) == Native.Utf8(error->Text)) {
      ExceptionDispatchInfo.Capture(thrown).Throw();
    }
    throw new RunTimeException(error, thrown);
  }

  /// Runs a host's function. No exception may cross the library's own frames.
  internal static int Guard(Action function) {
    try {
      function();
      return 0;
    } catch (Exception thrown) {
      return Keep(thrown);
    }
  }

  /// Tells the library of a failure.
  internal static int Keep(Exception thrown) {
    Native.zq7_fail(Number(thrown), Native.Utf8(Text(thrown)));
    t_thrown = thrown;
    s_anyThrown = true;
    return 1;
  }

  private static int Number(Exception thrown) =>
      (thrown as RunTimeException)?.Number ?? AutomationError;

  private static string Text(Exception thrown) =>
      (thrown as RunTimeException)?.Text ?? thrown.Message;
}

internal sealed class ServicesHandle : SafeHandle {
  internal ServicesHandle(IntPtr services) : base(IntPtr.Zero, true) {
    SetHandle(services);
  }

  public override bool IsInvalid => handle == IntPtr.Zero;

  protected override bool ReleaseHandle() {
    Native.zq7_services_release(handle);
    return true;
  }
}

internal sealed class SubscriptionHandle : SafeHandle {
  internal SubscriptionHandle(IntPtr subscription) : base(IntPtr.Zero, true) {
    SetHandle(subscription);
  }

  public override bool IsInvalid => handle == IntPtr.Zero;

  protected override bool ReleaseHandle() {
    Native.zq7_unsubscribe(handle);
    return true;
  }
}

internal sealed unsafe class ObjectHandle : SafeHandle {
  internal readonly EventHandlers Events;
  /// Kept, because the library calls its functions as long as the object is used.
  internal readonly Services Services;
  // An object belongs to one thread at a time, so that these need no lock.
  private int _calls;
  private bool _released;
  // Where short texts are written. A call within a call has read its own when the outer one ends.
  private char[] _room;
  private const int RoomSize = 200;

  internal ObjectHandle(IntPtr instance, Services services) : base(IntPtr.Zero, true) {
    SetHandle(instance);
    Events = new EventHandlers(this);
    Services = services;
  }

  internal static ObjectHandle Create(string className, Services services) {
    if (Native.zq7_version() < Native.Version) {
      throw new RunTimeException(429, Native.Library + " is older than ZQ7Standard.cs");
    }
    Failures.Check(Native.zq7_create(Native.Utf8(className), services?.Handle ?? IntPtr.Zero,
                                     out IntPtr instance));
    return new ObjectHandle(instance, services);
  }

  public override bool IsInvalid => handle == IntPtr.Zero;

  /// The library's own handle.
  internal IntPtr Open() {
    if (_released) Refuse();
    return handle;
  }

  internal Value Invoke(int number, Value* arguments, int count) {
    Begin();
    Value result;
    End(Native.zq7_invoke(handle, number, arguments, (UIntPtr)count, &result));
    return result;
  }

  internal string InvokeText(int number, Value* arguments, int count) {
    if (_room == null) _room = new char[RoomSize];
    Begin();
    fixed (char* room = _room) {
      Value result;
      End(Native.zq7_invoke_text(handle, number, arguments, (UIntPtr)count, room,
                                 (UIntPtr)RoomSize, &result));
      return result.TakeText();
    }
  }

  internal Value Get(int number) {
    Begin();
    Value value;
    End(Native.zq7_get(handle, number, &value));
    return value;
  }

  internal void Set(int number, Value* value) {
    Begin();
    End(Native.zq7_set(handle, number, value));
  }

  /// Releases the object, after the calls that it is in.
  internal void Release() {
    _released = true;
    if (_calls == 0) Dispose();
  }

  private void Begin() {
    if (_released) Refuse();
    ++_calls;
    Failures.Begin();
  }

  private static void Refuse() => throw new ObjectDisposedException(nameof(ZQ7Object));

  private void End(int status) {
    if (--_calls == 0 && _released) Dispose();
    if (status != 0) Failures.Throw();
  }

  protected override bool ReleaseHandle() {
    Native.zq7_release(handle);
    return true;
  }
}

/// Calls the handlers of an event with the values that it came with.
internal unsafe delegate void RaiseEvent(Delegate handlers, Value* values);

/// The handlers of an object's events, which live as long as the object is used. The library
/// knows of them while there are any.
internal sealed unsafe class EventHandlers : IDisposable {
  private struct Entry {
    internal Delegate Handlers;
    internal RaiseEvent Raise;
  }

  private readonly ObjectHandle _owner;
  private readonly Dictionary<int, Entry> _entries = new Dictionary<int, Entry>();
  private SubscriptionHandle _subscription;

  internal EventHandlers(ObjectHandle owner) {
    _owner = owner;
  }

  internal void Add(int number, Delegate handler, RaiseEvent raise) {
    if (handler == null) return;
    if (_subscription == null) _subscription = Subscribe();
    _entries.TryGetValue(number, out Entry entry);
    _entries[number] =
        new Entry { Handlers = Delegate.Combine(entry.Handlers, handler), Raise = raise };
  }

  internal void Remove(int number, Delegate handler) {
    if (!_entries.TryGetValue(number, out Entry entry)) return;
    entry.Handlers = Delegate.Remove(entry.Handlers, handler);
    _entries[number] = entry;
    if (entry.Handlers == null) _entries.Remove(number);
    if (_entries.Count == 0) Dispose();
  }

  internal void Raise(int number, Value* values) {
    if (_entries.TryGetValue(number, out Entry entry)) entry.Raise(entry.Handlers, values);
  }

  public void Dispose() {
    _entries.Clear();
    _subscription?.Dispose();
    _subscription = null;
  }

  private SubscriptionHandle Subscribe() {
    // Weak, or handlers that know the object would keep it for ever. Events are raised inside
    // calls, which keep it alive.
    using (var contexts = new Contexts(this, GCHandleType.Weak)) {
      OneFunction sink = contexts.Table(Callbacks.Raise);
      Failures.Check(Native.zq7_subscribe(_owner.Open(), &sink, out IntPtr subscription));
      contexts.Keep(sink);
      return new SubscriptionHandle(subscription);
    }
  }
}

/// A picture whose bytes stay where they are as long as the library keeps it.
internal sealed class PinnedPicture {
  private GCHandle _pin;

  internal PinnedPicture(IPicture picture) {
    Picture = picture;
  }

  internal IPicture Picture { get; }

  internal byte[] Pinned() {
    if (!_pin.IsAllocated) _pin = GCHandle.Alloc(Picture.Bytes, GCHandleType.Pinned);
    return (byte[])_pin.Target;
  }

  internal void Release() {
    if (_pin.IsAllocated) _pin.Free();
  }
}

/// Makes tables of functions for an object of the host's. Frees the contexts of those that the
/// library does not take over.
internal sealed class Contexts : IDisposable {
  private readonly object _target;
  private readonly GCHandleType _kind;
  private readonly HashSet<IntPtr> _mine = new HashSet<IntPtr>();

  internal Contexts(object target, GCHandleType kind) {
    _target = target;
    _kind = kind;
  }

  internal OneFunction Table(IntPtr function) => Table<OneFunction>(function);

  internal ThreeFunctions Picture() => new ThreeFunctions {
    First = Table<ThreeFunctions>(Callbacks.Width),
    Second = Callbacks.Height,
    Third = Callbacks.Bytes
  };

  internal SixFunctions SerialPort() => new SixFunctions {
    First = Table<SixFunctions>(Callbacks.SetCommPort),
    Second = Callbacks.SetSettings,
    Third = Callbacks.SetInputLen,
    Fourth = Callbacks.SetPortOpen,
    Fifth = Callbacks.SetOutput,
    Sixth = Callbacks.PortOpen
  };

  /// The library has taken `table`: its `release` frees the context.
  internal void Keep(OneFunction table) => _mine.Remove(table.Context);

  public void Dispose() {
    foreach (IntPtr context in _mine) GCHandle.FromIntPtr(context).Free();
  }

  private OneFunction Table<T>(IntPtr function) {
    IntPtr context = GCHandle.ToIntPtr(GCHandle.Alloc(_target, _kind));
    _mine.Add(context);
    return new OneFunction {
      Size = (UIntPtr)Marshal.SizeOf(typeof(T)),
      Context = context,
      Release = Callbacks.Release,
      First = function
    };
  }
}

/// What the library calls. The delegates are kept, so that no collection takes them away.
internal static unsafe class Callbacks {
  private delegate void ReleaseFunction(IntPtr context);
  private delegate int NowFunction(IntPtr context, Value* now);
  private delegate int CurrentFunction(IntPtr context, int* dayFirst, int* buddhist);
  private delegate int ShowFunction(IntPtr context, Value* title, Value* text, int isError);
  private delegate int SetNumberFunction(IntPtr context, int value);
  private delegate int SetTextFunction(IntPtr context, Value* text);
  private delegate int FlagFunction(IntPtr context, int* flag);
  private delegate int LengthFunction(IntPtr context, float* millimetres);
  private delegate int BytesFunction(IntPtr context, void** bytes, UIntPtr* size);
  private delegate int RaiseFunction(IntPtr context, NativeMember* member, Value* values,
                                     UIntPtr count);

  private static readonly List<Delegate> s_kept = new List<Delegate>();

  internal static readonly IntPtr Release = Keep(new ReleaseFunction(context => {
    GCHandle handle = GCHandle.FromIntPtr(context);
    (handle.Target as PinnedPicture)?.Release();
    handle.Free();
  }));

  internal static readonly IntPtr Now = Keep(new NowFunction((context, now) =>
    Failures.Guard(() => now->Set(Target<Services>(context).Clock()))));

  internal static readonly IntPtr Current = Keep(new CurrentFunction(
    (context, dayFirst, buddhist) => Failures.Guard(() => {
      DateConvention convention = Target<Services>(context).Convention();
      *dayFirst = convention.DayFirst ? 1 : 0;
      *buddhist = convention.Buddhist ? 1 : 0;
    })));

  internal static readonly IntPtr Show = Keep(new ShowFunction((context, title, text, isError) =>
    Failures.Guard(() => Target<Services>(context)
        .MessageBox(title->TakeText(), text->TakeText(), isError != 0))));

  internal static readonly IntPtr SetCommPort = Keep(new SetNumberFunction((context, port) =>
    Failures.Guard(() => Target<ISerialPort>(context).CommPort = port)));
  internal static readonly IntPtr SetSettings = Keep(new SetTextFunction((context, settings) =>
    Failures.Guard(() => Target<ISerialPort>(context).Settings = settings->TakeText())));
  internal static readonly IntPtr SetInputLen = Keep(new SetNumberFunction((context, length) =>
    Failures.Guard(() => Target<ISerialPort>(context).InputLen = length)));
  internal static readonly IntPtr SetPortOpen = Keep(new SetNumberFunction((context, open) =>
    Failures.Guard(() => Target<ISerialPort>(context).PortOpen = open != 0)));
  internal static readonly IntPtr SetOutput = Keep(new SetTextFunction((context, text) =>
    Failures.Guard(() => Target<ISerialPort>(context).Output = text->TakeText())));
  internal static readonly IntPtr PortOpen = Keep(new FlagFunction((context, open) =>
    Failures.Guard(() => *open = Target<ISerialPort>(context).PortOpen ? 1 : 0)));

  internal static readonly IntPtr Width = Keep(new LengthFunction((context, width) =>
    Failures.Guard(() => *width = Target<PinnedPicture>(context).Picture.Width)));
  internal static readonly IntPtr Height = Keep(new LengthFunction((context, height) =>
    Failures.Guard(() => *height = Target<PinnedPicture>(context).Picture.Height)));
  internal static readonly IntPtr Bytes = Keep(new BytesFunction((context, bytes, size) =>
    Failures.Guard(() => {
      byte[] pinned = Target<PinnedPicture>(context).Pinned();
      *size = (UIntPtr)pinned.Length;
      fixed (byte* first = pinned) *bytes = first;
    })));

  // As often as cells are set, and so without a closure.
  internal static readonly IntPtr Raise = Keep(new RaiseFunction(
    (context, member, values, count) => {
      try {
        Target<EventHandlers>(context).Raise(member->Number, values);
        return 0;
      } catch (Exception thrown) {
        return Failures.Keep(thrown);
      }
    }));

  private static IntPtr Keep(Delegate function) {
    s_kept.Add(function);
    return Marshal.GetFunctionPointerForDelegate(function);
  }

  private static T Target<T>(IntPtr context) where T : class =>
      (T)GCHandle.FromIntPtr(context).Target ?? throw new ObjectDisposedException(typeof(T).Name);
}

}  // namespace ZQ7Standard
