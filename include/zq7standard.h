#ifndef ZQ7STANDARD_H_
#define ZQ7STANDARD_H_

#include <stddef.h>
#include <stdint.h>
#ifndef __cplusplus
#include <uchar.h>
#endif

/// The C interface of ZQ7Standard: every public class by name or number, for programs in C
/// and for bindings to other languages. docs/abi.md writes down its layout.
///
/// Failures: a function that can fail returns a `zq7_status`, and `zq7_last_error` then has
/// the details. What a failed function was to write is left empty (null, `ZQ7_OMITTED`), so
/// that it may be released or cleared. Wrong use, such as a null pointer, is error 5.
///
/// Memory: what a function writes to a `zq7_value` is the library's until
/// `zq7_value_clear`, and no longer. What a caller passes remains the caller's; the library
/// keeps no pointer into it after the call. Catalogue data lasts as long as the program.
///
/// Threads: an object, with its subscriptions, belongs to one thread at a time; distinct
/// objects are independent. `zq7_release` and `zq7_services_release` may be called on any
/// thread, such as a finalizer's, when no call uses the handle. Errors are kept for each
/// thread. Everything else may be called on any thread.
///
/// Structs that the library owns may grow at their end: `zq7_version` tells which fields
/// are there. Tables that a host fills begin with their size. Texts are UTF-16 with a
/// length where they may hold anything, and UTF-8 with a NUL where they are names or
/// messages.

#if defined(__GNUC__)
#define ZQ7_API __attribute__((visibility("default")))
#else
#define ZQ7_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/// The version of the library: major * 10000 + minor * 100 + patch.
ZQ7_API int32_t zq7_version(void);

// --- Values ---

/// What a value holds, and the types of parameters and results.
typedef enum zq7_tag {
  ZQ7_OMITTED = 0,     ///< an argument that is left out, or no result
  ZQ7_NULL = 1,        ///< an explicit null: "no value", or no object
  ZQ7_TEXT = 2,        ///< `text`, `length` code units of UTF-16
  ZQ7_INTEGER = 3,     ///< `integer`, 16 bits
  ZQ7_LONG = 4,        ///< `integer`, 32 bits; also every enumeration
  ZQ7_SINGLE = 5,      ///< `number`, with the precision of a float
  ZQ7_DOUBLE = 6,      ///< `number`
  ZQ7_BOOLEAN = 7,     ///< `integer`, 0 or 1
  ZQ7_DATE = 8,        ///< `number`, a day count: `zq7_date_of_parts`
  ZQ7_CURRENCY = 9,    ///< `scaled`, a count of 1/10000 units
  ZQ7_TEXT_LIST = 10,  ///< `list`, `length` values, each a text
  ZQ7_OBJECT = 11,     ///< `object`
  ZQ7_BYTE = 12        ///< a type only: its values are `ZQ7_INTEGER`, 0 to 255
} zq7_tag;

/// An instance of a public class.
typedef struct zq7_object zq7_object;

/// An argument or a result. A caller sets `tag` and the field that the tag names.
///
///     const zq7_value amount = {.tag = ZQ7_DOUBLE, .number = 121.50};
typedef struct zq7_value {
  int32_t tag;
  int32_t owned;  ///< set by the library if `zq7_value_clear` has something to free; else 0
  union {
    int32_t integer;
    double number;
    int64_t scaled;
    const char16_t* text;
    const struct zq7_value* list;
    zq7_object* object;
  };
  uint64_t length;
} zq7_value;

/// Frees what a value that the library wrote holds, and makes it `ZQ7_OMITTED`. Does
/// nothing to values of the caller's own and to a null pointer. A result may be copied, but
/// only one copy cleared.
ZQ7_API void zq7_value_clear(zq7_value* value);

// --- Errors ---

typedef enum zq7_status {
  ZQ7_OK = 0,
  ZQ7_FAILED = 1  ///< `zq7_last_error` has the details
} zq7_status;

/// A run-time error; docs/errors.md lists the numbers. Names are empty if not known.
typedef struct zq7_error {
  int32_t number;
  const char* message;  ///< all of it in one line: operation, text, number, parameter, input
  const char* text;     ///< what happened: "type mismatch"
  const char* class_name;
  const char* operation;
  const char* parameter;  ///< the one whose argument is wrong
  const char16_t* input;  ///< that argument, whole; null if not known
  uint64_t input_length;
} zq7_error;

/// The last failure on this thread; null if there was none. It lasts until the next failure
/// on the thread.
ZQ7_API const zq7_error* zq7_last_error(void);

/// For functions that a host hands in: tells what failed before returning `ZQ7_FAILED`.
/// `text` is UTF-8. Without it the failure is error 440.
ZQ7_API void zq7_fail(int32_t number, const char* text);

// --- Helpers ---

/// Writes `size` bytes of UTF-8 as a text. A byte outside a well-formed sequence becomes
/// U+FFFD.
ZQ7_API zq7_status zq7_text_of_utf8(const char* bytes, size_t size, zq7_value* text);

/// Writes a text to `buffer` as UTF-8 with a NUL, cut between characters if `capacity` is
/// too small, and returns the size of the whole without the NUL. A surrogate without its
/// partner becomes U+FFFD. `buffer` may be null if `capacity` is 0. Any other value than a
/// text is the empty text.
ZQ7_API size_t zq7_utf8_of_text(const zq7_value* text, char* buffer, size_t capacity);

/// A date and time of day in the Gregorian calendar.
typedef struct zq7_date {
  int32_t year;    ///< 100 to 9999; a Buddhist Era year less 543
  int32_t month;   ///< 1 to 12
  int32_t day;     ///< from 1
  int32_t hour;    ///< 0 to 23
  int32_t minute;  ///< 0 to 59
  int32_t second;  ///< 0 to 59
} zq7_date;

/// Writes the day count of a date as a `ZQ7_DATE`: days since 1899-12-30, the fraction being
/// the time of day. Before that day the fraction counts forward from the whole day too:
/// -1.25 is 1899-12-29 06:00. Error 5 for any other date.
ZQ7_API zq7_status zq7_date_of_parts(const zq7_date* parts, zq7_value* date);

/// Writes the parts of a `ZQ7_DATE`, rounded to the second within its day. Error 5 for any
/// other value, and for a day count outside the years 100 to 9999.
ZQ7_API zq7_status zq7_parts_of_date(const zq7_value* date, zq7_date* parts);

// --- The catalogue ---

typedef struct zq7_enumerator {
  const char* name;
  const char* help;  ///< may be empty, as everywhere
  int32_t value;
} zq7_enumerator;

typedef struct zq7_enumeration {
  const char* name;
  const char* help;
  const char* details;
  const zq7_enumerator* const* members;
  size_t member_count;
} zq7_enumeration;

/// The type of a parameter, a property or a result.
typedef struct zq7_type {
  int32_t tag;                         ///< `ZQ7_OMITTED` if there is no result
  const zq7_enumeration* enumeration;  ///< whose members a `ZQ7_LONG` takes; may be null
  const char* object_class;            ///< the class of a `ZQ7_OBJECT`; else empty
} zq7_type;

typedef enum zq7_parameter_flags {
  ZQ7_OPTIONAL = 1,
  ZQ7_BY_REFERENCE = 2,  ///< for hosts that bind to the class itself; never written to
  ZQ7_NULLABLE = 4       ///< accepts `ZQ7_NULL`
} zq7_parameter_flags;

typedef struct zq7_parameter {
  const char* name;
  const char* help;
  zq7_type type;
  zq7_value default_value;  ///< of an optional one; `ZQ7_OMITTED` if the operation tells them apart
  uint32_t flags;           ///< of `zq7_parameter_flags`
} zq7_parameter;

typedef enum zq7_member_kind { ZQ7_OPERATION = 1, ZQ7_PROPERTY = 2, ZQ7_EVENT = 3 } zq7_member_kind;

typedef enum zq7_member_flags {
  ZQ7_READABLE = 1,  ///< a property
  ZQ7_WRITABLE = 2,  ///< a property
  ZQ7_MAY_BLOCK = 4  ///< may wait for a file, a device, a print server or a message box, or
                     ///< derive keys; a property, when it is set
} zq7_member_flags;

typedef struct zq7_member {
  const char* name;
  int32_t number;  ///< in its class, from 1; never changes once released
  int32_t kind;    ///< a `zq7_member_kind`
  uint32_t flags;  ///< of `zq7_member_flags`
  zq7_type type;   ///< of the result, or of the property
  const zq7_parameter* const* parameters;
  size_t parameter_count;
  const char* help;     ///< one line
  const char* details;  ///< the rest of the documentation, paragraphs separated by blank lines
  const char* subject;  ///< shared by operations that belong together
} zq7_member;

typedef enum zq7_class_flags {
  ZQ7_CREATABLE = 1,  ///< by `zq7_create`
  ZQ7_HAS_EVENTS = 2
} zq7_class_flags;

typedef struct zq7_class {
  const char* name;
  const char* help;
  const char* details;
  uint32_t flags;                    ///< of `zq7_class_flags`
  const zq7_member* const* members;  ///< operations, properties, events
  size_t member_count;
} zq7_class;

/// An error number and what it means.
typedef struct zq7_error_info {
  int32_t number;
  const char* name;  ///< such as "TypeMismatch"
  const char* text;  ///< such as "type mismatch"
} zq7_error_info;

/// The classes, enumerations and error numbers of the library; the number of them is written
/// to `count`, which may be null.
ZQ7_API const zq7_class* const* zq7_classes(size_t* count);
ZQ7_API const zq7_enumeration* const* zq7_enumerations(size_t* count);
ZQ7_API const zq7_error_info* const* zq7_errors(size_t* count);

/// The class, or a class's member, with that name in any case; null if there is none.
ZQ7_API const zq7_class* zq7_find_class(const char* name);
ZQ7_API const zq7_member* zq7_find_member(const zq7_class* owner, const char* name);

// --- Services ---
//
// What a host hands in is a table of functions that begins with its size. Each function gets
// `context`, returns `ZQ7_OK`, or calls `zq7_fail` and returns `ZQ7_FAILED`; it must neither
// throw nor jump out. The table is copied. `release` may be null; it is called once, on any
// thread, when the library needs `context` no more, and not at all if the table was refused.

/// Today's date and time.
typedef struct zq7_clock {
  size_t size;
  void* context;
  void (*release)(void* context);
  /// Writes a `ZQ7_DATE`, as `zq7_date_of_parts` does.
  zq7_status (*now)(void* context, zq7_value* now);
} zq7_clock;

/// How dates are typed and shown.
typedef struct zq7_convention {
  size_t size;
  void* context;
  void (*release)(void* context);
  /// Writes 1 or 0: whether the day comes before the month, and whether years are Buddhist.
  zq7_status (*current)(void* context, int32_t* day_first, int32_t* buddhist);
} zq7_convention;

/// Tells the user of a problem; the operation goes on when `show` returns.
typedef struct zq7_message_box {
  size_t size;
  void* context;
  void (*release)(void* context);
  /// `title` and `text` are texts; `is_error` is 1 for an error that stopped the operation.
  zq7_status (*show)(void* context, const zq7_value* title, const zq7_value* text,
                     int32_t is_error);
} zq7_message_box;

/// A serial line of the host's own, set up by its properties in the order of the catalogue's
/// class SerialPort.
typedef struct zq7_serial_port {
  size_t size;
  void* context;
  void (*release)(void* context);
  zq7_status (*set_comm_port)(void* context, int32_t port);
  zq7_status (*set_settings)(void* context, const zq7_value* settings);
  zq7_status (*set_input_len)(void* context, int32_t length);
  zq7_status (*set_port_open)(void* context, int32_t open);
  zq7_status (*set_output)(void* context, const zq7_value* text);
  zq7_status (*port_open)(void* context, int32_t* open);
} zq7_serial_port;

/// A picture of the host's own: its size in millimetres and the bytes of a PNG or JPEG file,
/// which last as long as the picture.
typedef struct zq7_picture {
  size_t size;
  void* context;
  void (*release)(void* context);
  zq7_status (*width)(void* context, float* millimetres);
  zq7_status (*height)(void* context, float* millimetres);
  zq7_status (*bytes)(void* context, const void** bytes, size_t* size);
} zq7_picture;

/// The folder that a drive of path texts stands for.
typedef struct zq7_drive {
  char letter;         ///< A to Z
  const char* folder;  ///< UTF-8
} zq7_drive;

/// The device of a port number.
typedef struct zq7_serial_device {
  int32_t port;
  const char* device;  ///< such as "/dev/serial/by-id/usb-..."
} zq7_serial_device;

typedef enum zq7_service_flags {
  ZQ7_MEMORY_REGISTRY = 1,  ///< registry values are kept in memory alone
  ZQ7_SODIUM_CIPHER = 2     ///< enciphers with libsodium; error 429 if it is not built in
} zq7_service_flags;

/// What objects need from the machine. What is null or 0 is the machine's own.
typedef struct zq7_service_table {
  size_t size;
  uint32_t flags;  ///< of `zq7_service_flags`
  const zq7_clock* clock;
  const zq7_convention* convention;
  const zq7_message_box* message_box;
  const zq7_drive* drives;
  size_t drive_count;
  const zq7_serial_device* serial_devices;
  size_t serial_device_count;
} zq7_service_table;

/// Services for any number of objects, which keep them after `zq7_services_release`. Objects
/// of several threads may share them if the host's functions may be called on all of those.
typedef struct zq7_services zq7_services;

ZQ7_API zq7_status zq7_services_create(const zq7_service_table* table, zq7_services** services);
ZQ7_API void zq7_services_release(zq7_services* services);

// --- Objects ---

/// Makes an instance of a class. `services` may be null: all the machine's own. Error 429
/// for an unknown name, and for a class that is not `ZQ7_CREATABLE`.
ZQ7_API zq7_status zq7_create(const char* class_name, const zq7_services* services,
                              zq7_object** object);

/// Make a host's serial line or picture an object, to pass to operations.
ZQ7_API zq7_status zq7_wrap_serial_port(const zq7_serial_port* table, zq7_object** object);
ZQ7_API zq7_status zq7_wrap_picture(const zq7_picture* table, zq7_object** object);

/// Reads a PNG or JPEG file as a picture. `path` is a text, on the drives of `services`,
/// which may be null. Errors 53, 57, 70 or 75 if it cannot be read, 5 for another kind.
ZQ7_API zq7_status zq7_picture_of_file(const zq7_value* path, const zq7_services* services,
                                       zq7_object** object);

/// Ends the caller's use of an object; null is ignored. A subscription keeps its object.
ZQ7_API void zq7_release(zq7_object* object);

/// The class of an object.
ZQ7_API const zq7_class* zq7_class_of(const zq7_object* object);

/// Calls the operation with that number. Arguments are in the order of the parameters;
/// `ZQ7_OMITTED` leaves one out. They are converted by the rules of calls by name
/// (docs/abi.md). `result` may be null.
///
/// Errors: what the operation raises; 438 for a number or name that is not an operation's,
/// 448 for an argument name that is not a parameter's, 449 for an argument that is missing,
/// 450 for too many, 13 and 6 for one that does not fit its type.
ZQ7_API zq7_status zq7_invoke(zq7_object* object, int32_t number, const zq7_value* arguments,
                              size_t count, zq7_value* result);

/// An argument of a call by name.
typedef struct zq7_argument {
  const char* name;  ///< null for arguments by position, which come first
  zq7_value value;
} zq7_argument;

/// The same by the operation's name, in any case.
ZQ7_API zq7_status zq7_invoke_by_name(zq7_object* object, const char* operation,
                                      const zq7_argument* arguments, size_t count,
                                      zq7_value* result);

/// Reads or sets the property with that number or name. Error 438 if the class has none that
/// can be read or set.
ZQ7_API zq7_status zq7_get(zq7_object* object, int32_t number, zq7_value* value);
ZQ7_API zq7_status zq7_get_by_name(zq7_object* object, const char* property, zq7_value* value);
ZQ7_API zq7_status zq7_set(zq7_object* object, int32_t number, const zq7_value* value);
ZQ7_API zq7_status zq7_set_by_name(zq7_object* object, const char* property,
                                   const zq7_value* value);

// --- Events ---

/// Receives the events of an object, inside the operation and on its thread. It may call the
/// object again. A failure ends the operation and is its error.
typedef struct zq7_event_sink {
  size_t size;
  void* context;
  void (*release)(void* context);
  zq7_status (*raise)(void* context, const zq7_member* event, const zq7_value* arguments,
                      size_t count);
} zq7_event_sink;

typedef struct zq7_subscription zq7_subscription;

/// Sends the events of an object to `sink` until `zq7_unsubscribe`. Error 438 for a class
/// without events.
ZQ7_API zq7_status zq7_subscribe(zq7_object* object, const zq7_event_sink* sink,
                                 zq7_subscription** subscription);

/// Ends a subscription, on the thread of its object or when no other uses it; null is
/// ignored.
ZQ7_API void zq7_unsubscribe(zq7_subscription* subscription);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif  // ZQ7STANDARD_H_
