// A host in C that uses the whole C interface. Compiled as C11 and, by interface_test.cc, as
// C++. Its argument is the path of a PNG file.
#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <threads.h>
#include <zq7standard.h>

static int failed_checks = 0;

#define CHECK(condition)                                                      \
  do {                                                                        \
    if (!(condition)) {                                                       \
      fprintf(stderr, "%s:%d: failed: %s\n", __FILE__, __LINE__, #condition); \
      ++failed_checks;                                                        \
    }                                                                         \
  } while (0)

// --- Values ---

static zq7_value Empty(int32_t tag) {
  zq7_value value;
  memset(&value, 0, sizeof value);
  value.tag = tag;
  return value;
}

static zq7_value Whole(int32_t number) {
  zq7_value value = Empty(ZQ7_LONG);
  value.integer = number;
  return value;
}

static zq7_value Number(double number) {
  zq7_value value = Empty(ZQ7_DOUBLE);
  value.number = number;
  return value;
}

static zq7_value Utf16(const char16_t* text, size_t length) {
  zq7_value value = Empty(ZQ7_TEXT);
  value.text = text;
  value.length = length;
  return value;
}

/// A text of the library's, for the caller to clear.
static zq7_value Utf8(const char* text) {
  zq7_value value;
  CHECK(zq7_text_of_utf8(text, strlen(text), &value) == ZQ7_OK);
  return value;
}

static zq7_value Date(int32_t year, int32_t month, int32_t day, int32_t hour) {
  const zq7_date parts = {year, month, day, hour, 0, 0};
  zq7_value value;
  CHECK(zq7_date_of_parts(&parts, &value) == ZQ7_OK);
  return value;
}

static int IsText(const zq7_value* value, const char* expected) {
  char text[400];
  const size_t size = zq7_utf8_of_text(value, text, sizeof text);
  if (size == strlen(expected) && strcmp(text, expected) == 0) return 1;
  fprintf(stderr, "\"%s\" instead of \"%s\"\n", text, expected);
  return 0;
}

static int ErrorIs(int32_t number, const char* operation, const char* parameter) {
  const zq7_error* error = zq7_last_error();
  if (error != NULL && error->number == number && strcmp(error->operation, operation) == 0 &&
      strcmp(error->parameter, parameter) == 0) {
    return 1;
  }
  if (error != NULL) fprintf(stderr, "%" PRId32 ": %s\n", error->number, error->message);
  return 0;
}

// --- Objects ---

static zq7_object* New(const char* class_name, const zq7_services* services) {
  zq7_object* object = NULL;
  CHECK(zq7_create(class_name, services, &object) == ZQ7_OK);
  return object;
}

static int32_t NumberOf(const zq7_object* object, const char* member) {
  const zq7_member* found = zq7_find_member(zq7_class_of(object), member);
  CHECK(found != NULL);
  return found == NULL ? 0 : found->number;
}

static zq7_status Call(zq7_object* object, const char* operation, const zq7_value* arguments,
                       size_t count, zq7_value* result) {
  return zq7_invoke(object, NumberOf(object, operation), arguments, count, result);
}

// --- The catalogue ---

static void TestCatalogue(void) {
  size_t count = 0;
  const zq7_class* const* classes = zq7_classes(&count);
  CHECK(count >= 12);
  for (size_t i = 0; i < count; ++i) {
    CHECK(zq7_find_class(classes[i]->name) == classes[i]);
    for (size_t m = 0; m < classes[i]->member_count; ++m) {
      const zq7_member* member = classes[i]->members[m];
      CHECK(zq7_find_member(classes[i], member->name) == member);
      CHECK(member->number > 0 && member->help[0] != '\0');
    }
  }
  const zq7_class* standard = zq7_find_class("standardobject");
  CHECK(standard != NULL && strcmp(standard->name, "StandardObject") == 0);
  CHECK((standard->flags & (ZQ7_CREATABLE | ZQ7_HAS_EVENTS)) == ZQ7_CREATABLE);
  CHECK((zq7_find_class("GridValueObject")->flags & ZQ7_HAS_EVENTS) != 0);
  CHECK((zq7_find_class("PrintPicture")->flags & ZQ7_CREATABLE) == 0);

  const zq7_member* months = zq7_find_member(standard, "ADDMONTH");
  CHECK(months != NULL && months->kind == ZQ7_OPERATION && months->type.tag == ZQ7_DATE);
  CHECK((months->flags & ZQ7_MAY_BLOCK) == 0 && months->parameter_count == 2);
  const zq7_parameter* shift = months->parameters[1];
  CHECK((shift->flags & ZQ7_OPTIONAL) != 0 && shift->default_value.tag == ZQ7_INTEGER);
  const zq7_member* layout = zq7_find_member(standard, "FormatTDate2");
  CHECK(layout->parameters[1]->type.enumeration != NULL);
  CHECK(strcmp(layout->parameters[1]->type.enumeration->members[0]->name, "ZQ7Detect") == 0);
  const zq7_class* files = zq7_find_class("ASCIIObject");
  CHECK((zq7_find_member(files, "GetValue")->flags & ZQ7_MAY_BLOCK) != 0);
  CHECK(zq7_find_member(files, "DisableMsgLevel")->flags == (ZQ7_READABLE | ZQ7_WRITABLE));
  const zq7_class* devices = zq7_find_class("PeripheralObject");
  CHECK(strcmp(zq7_find_member(devices, "OpenDraw")->parameters[0]->type.object_class,
               "SerialPort") == 0);

  zq7_enumerations(&count);
  CHECK(count >= 7);
  const zq7_error_info* const* errors = zq7_errors(&count);
  int found = 0;
  for (size_t i = 0; i < count; ++i) {
    found += errors[i]->number == 13 && strcmp(errors[i]->name, "TypeMismatch") == 0;
  }
  CHECK(found == 1);
  CHECK(zq7_find_class("Object") == NULL && zq7_find_class(NULL) == NULL);
  CHECK(zq7_find_member(standard, "Add") == NULL && zq7_find_member(NULL, "AddMonth") == NULL);
  CHECK(zq7_version() == 100);
}

// --- Helpers ---

static void TestTexts(void) {
  const char16_t clef[] = {0xD834, 0xDD1E};  // U+1D11E, four bytes of UTF-8
  const char16_t half[] = {u'a', 0xD834};
  char buffer[8];
  const zq7_value pair = Utf16(clef, 2);
  const zq7_value lone = Utf16(half, 2);
  CHECK(zq7_utf8_of_text(&pair, NULL, 0) == 4);
  CHECK(zq7_utf8_of_text(&pair, buffer, 4) == 4 && strcmp(buffer, "") == 0);
  CHECK(zq7_utf8_of_text(&pair, buffer, 5) == 4 && strcmp(buffer, "\xF0\x9D\x84\x9E") == 0);
  CHECK(zq7_utf8_of_text(&lone, buffer, 8) == 4 && strcmp(buffer, "a\xEF\xBF\xBD") == 0);
  CHECK(zq7_utf8_of_text(NULL, buffer, 8) == 0 && buffer[0] == '\0');
  zq7_value text;
  CHECK(zq7_text_of_utf8("\xF0\x9D\x84\x9E", 4, &text) == ZQ7_OK);
  CHECK(text.length == 2 && memcmp(text.text, clef, sizeof clef) == 0);
  zq7_value_clear(&text);
  CHECK(text.tag == ZQ7_OMITTED && text.owned == 0);
  zq7_value_clear(&text);
  zq7_value_clear(NULL);
  CHECK(zq7_text_of_utf8(NULL, 1, &text) == ZQ7_FAILED && text.owned == 0);
}

static void TestDates(void) {
  static const struct {
    zq7_date parts;
    double days;
  } kRows[] = {{{1899, 12, 30, 0, 0, 0}, 0},
               {{1899, 12, 29, 6, 0, 0}, -1.25},
               {{2024, 2, 29, 18, 0, 0}, 45351.75},
               {{100, 1, 1, 0, 0, 0}, -657434},
               {{9999, 12, 31, 12, 0, 0}, 2958465.5}};
  for (size_t i = 0; i < sizeof kRows / sizeof *kRows; ++i) {
    zq7_value date;
    zq7_date parts;
    CHECK(zq7_date_of_parts(&kRows[i].parts, &date) == ZQ7_OK && date.number == kRows[i].days);
    CHECK(zq7_parts_of_date(&date, &parts) == ZQ7_OK);
    CHECK(memcmp(&parts, &kRows[i].parts, sizeof parts) == 0);
  }
  const zq7_date no_date = {2023, 2, 29, 0, 0, 0};
  zq7_value date = Empty(ZQ7_DATE);
  zq7_date parts;
  CHECK(zq7_date_of_parts(&no_date, &date) == ZQ7_FAILED && date.tag == ZQ7_OMITTED);
  date = Empty(ZQ7_DATE);
  date.number = 1e7;
  CHECK(zq7_parts_of_date(&date, &parts) == ZQ7_FAILED && parts.year == 0);
}

// --- Calls ---

static void TestCalls(void) {
  zq7_object* baht = New("BahtStringObject", NULL);
  zq7_value result;
  zq7_value argument = Number(121.5);
  CHECK(Call(baht, "BahtString", &argument, 1, &result) == ZQ7_OK);
  CHECK(IsText(&result, "หนึ่งร้อยยี่สิบเอ็ดบาทห้าสิบสตางค์"));
  zq7_value_clear(&result);
  CHECK(Call(baht, "BahtString", &argument, 1, NULL) == ZQ7_OK);
  const zq7_argument named[] = {{NULL, Number(2)}, {"USEENGLISH", Whole(-1)}};
  CHECK(zq7_invoke_by_name(baht, "bahtstring", named, 2, &result) == ZQ7_OK);
  CHECK(IsText(&result, "Two baht"));
  zq7_value_clear(&result);

  char16_t room[8];
  const int32_t number = NumberOf(baht, "MoneyTextE");
  argument = Number(2);
  CHECK(zq7_invoke_text(baht, number, &argument, 1, room, 8, &result) == ZQ7_OK);
  CHECK(IsText(&result, "Two baht") && result.text == room && result.owned == 0);
  CHECK(zq7_invoke_text(baht, number, &argument, 1, room, 7, &result) == ZQ7_OK);
  CHECK(IsText(&result, "Two baht") && result.text != room && result.owned != 0);
  zq7_value_clear(&result);
  CHECK(zq7_invoke_text(baht, number, NULL, 0, room, 8, &result) == ZQ7_FAILED);
  CHECK(result.tag == ZQ7_OMITTED && ErrorIs(449, "MoneyTextE", "inDouble"));
  CHECK(zq7_invoke_text(baht, number, &argument, 1, NULL, 8, &result) == ZQ7_FAILED);
  zq7_release(baht);

  zq7_object* standard = New("StandardObject", NULL);
  zq7_value pair[2] = {Date(2024, 1, 31, 9), Empty(ZQ7_OMITTED)};
  CHECK(Call(standard, "AddMonth", pair, 2, &result) == ZQ7_OK && result.tag == ZQ7_DATE);
  CHECK(result.number == Date(2024, 2, 29, 0).number);
  pair[0] = Empty(ZQ7_BOOLEAN);
  pair[0].integer = 1;
  pair[1] = pair[0];
  CHECK(Call(standard, "GETDayTextArray", pair, 2, &result) == ZQ7_OK);
  CHECK(result.tag == ZQ7_TEXT_LIST && result.length >= 7 && IsText(&result.list[1], "อาทิตย์"));
  zq7_value_clear(&result);
  pair[0] = Empty(ZQ7_CURRENCY);
  pair[0].scaled = 12512;  // 1.2512
  CHECK(Call(standard, "FixMoneyDecimal", pair, 2, &result) == ZQ7_OK);
  CHECK(result.tag == ZQ7_CURRENCY && result.scaled == 20000);
  const zq7_value null = Empty(ZQ7_NULL);
  CHECK(Call(standard, "Null2Zero", &null, 1, &result) == ZQ7_OK);
  CHECK(result.tag == ZQ7_DOUBLE && result.number == 0);
  zq7_release(standard);
}

static void TestErrors(void) {
  zq7_object* standard = New("StandardObject", NULL);
  zq7_object* none = standard;
  zq7_value text = Utf8("x/y/z");
  zq7_value list = Empty(ZQ7_TEXT_LIST);
  list.list = &text;
  list.length = 1;
  const zq7_value unknown = Empty(99);
  zq7_value too_early = Empty(ZQ7_DATE);
  too_early.number = -657435;  // 0099-12-31
  const zq7_value many[3] = {Empty(ZQ7_OMITTED), Empty(ZQ7_OMITTED), Empty(ZQ7_OMITTED)};
  const struct {
    const char* operation;
    const zq7_value* arguments;
    size_t count;
    int32_t number;
    const char* parameter;
  } kRows[] = {
      {"CTDATE", &text, 1, 13, "iText"},    {"CTDATE", &list, 1, 13, "iText"},
      {"CTDATE", many, 0, 449, "iText"},    {"CTDATE", many, 3, 450, ""},
      {"AddMonth", &text, 1, 13, "InDate"}, {"AddMonth", &too_early, 1, 5, "InDate"},
  };
  for (size_t i = 0; i < sizeof kRows / sizeof *kRows; ++i) {
    zq7_value result = text;
    CHECK(Call(standard, kRows[i].operation, kRows[i].arguments, kRows[i].count, &result) ==
          ZQ7_FAILED);
    CHECK(ErrorIs(kRows[i].number, kRows[i].operation, kRows[i].parameter));
    CHECK(result.tag == ZQ7_OMITTED && result.owned == 0);
  }
  CHECK(Call(standard, "CTDATE", &text, 1, NULL) == ZQ7_FAILED);
  const zq7_error* error = zq7_last_error();
  const zq7_value input = Utf16(error->input, error->input_length);
  CHECK(IsText(&input, "x/y/z") && strcmp(error->class_name, "StandardObject") == 0);
  CHECK(strstr(error->message, "StandardObject.CTDATE: type mismatch (error 13)") != NULL);

  CHECK(zq7_invoke(standard, 99999, NULL, 0, NULL) == ZQ7_FAILED && ErrorIs(438, "99999", ""));
  CHECK(zq7_invoke(standard, -1, NULL, 0, NULL) == ZQ7_FAILED && ErrorIs(438, "-1", ""));
  CHECK(zq7_invoke_by_name(standard, "CTDAT", NULL, 0, NULL) == ZQ7_FAILED &&
        ErrorIs(438, "CTDAT", ""));
  const zq7_argument wrong_order[] = {{"iText", text}, {NULL, text}};
  const zq7_argument wrong_name[] = {{"Text", text}};
  CHECK(zq7_invoke_by_name(standard, "CTDATE", wrong_name, 1, NULL) == ZQ7_FAILED &&
        ErrorIs(448, "CTDATE", ""));
  const zq7_argument early[] = {{"InDate", too_early}};
  CHECK(zq7_invoke_by_name(standard, "AddMonth", early, 1, NULL) == ZQ7_FAILED &&
        ErrorIs(5, "AddMonth", "InDate"));
  CHECK(zq7_create("Object", NULL, &none) == ZQ7_FAILED && none == NULL && ErrorIs(429, "", ""));
  // Wrong use of the interface itself.
  CHECK(zq7_invoke_by_name(standard, "CTDATE", wrong_order, 2, NULL) == ZQ7_FAILED &&
        ErrorIs(5, "", ""));
  CHECK(Call(standard, "CTDATE", &unknown, 1, NULL) == ZQ7_FAILED);
  CHECK(ErrorIs(5, "CTDATE", "iText"));
  CHECK(Call(standard, "CTDATE", NULL, 1, NULL) == ZQ7_FAILED && ErrorIs(5, "", ""));
  CHECK(zq7_invoke(NULL, 1, NULL, 0, NULL) == ZQ7_FAILED && ErrorIs(5, "", ""));
  CHECK(zq7_create(NULL, NULL, &none) == ZQ7_FAILED && zq7_create("x", NULL, NULL) == ZQ7_FAILED);
  CHECK(zq7_class_of(NULL) == NULL);
  zq7_value_clear(&text);
  zq7_release(standard);
  zq7_release(NULL);
}

// --- Services ---

/// What a host's functions were called with.
typedef struct Host {
  char log[2000];
  int released;
  int fails;  // the number of the step that fails, from 1
  int steps;
} Host;

static zq7_status Step(void* context, const char* name, const zq7_value* text, int32_t number) {
  Host* host = (Host*)context;
  char shown[100] = "";
  if (text != NULL) zq7_utf8_of_text(text, shown, sizeof shown);
  const size_t used = strlen(host->log);
  snprintf(host->log + used, sizeof host->log - used, "%s(%s%" PRId32 ") ", name, shown, number);
  if (++host->steps != host->fails) return ZQ7_OK;
  zq7_fail(8020, "the drawer jams");
  return ZQ7_FAILED;
}

static void Release(void* context) {
  ++((Host*)context)->released;
}
static zq7_status Now(void* context, zq7_value* now) {
  *now = Date(2024, 1, 15, 9);
  return Step(context, "now", NULL, 0);
}
static zq7_status ThaiConvention(void* context, int32_t* day_first, int32_t* buddhist) {
  *day_first = 1;
  *buddhist = 1;
  return Step(context, "convention", NULL, 0);
}
static zq7_status Show(void* context, const zq7_value* title, const zq7_value* text,
                       int32_t is_error) {
  (void)title;
  return Step(context, "show", text, is_error);
}
static zq7_status SetCommPort(void* context, int32_t port) {
  return Step(context, "port", NULL, port);
}
static zq7_status SetSettings(void* context, const zq7_value* settings) {
  return Step(context, "settings", settings, 0);
}
static zq7_status SetInputLen(void* context, int32_t length) {
  return Step(context, "length", NULL, length);
}
static zq7_status SetPortOpen(void* context, int32_t open) {
  return Step(context, "open", NULL, open);
}
static zq7_status SetOutput(void* context, const zq7_value* text) {
  return Step(context, "output", text, 0);
}
static zq7_status PortOpen(void* context, int32_t* open) {
  *open = 1;
  return Step(context, "is_open", NULL, 0);
}

static void TestServices(void) {
  Host host = {"", 0, 0, 0};
  const zq7_clock clock = {sizeof clock, &host, Release, Now};
  const zq7_convention convention = {sizeof convention, &host, Release, ThaiConvention};
  const zq7_message_box box = {sizeof box, &host, Release, Show};
  const zq7_drive drive = {'D', "/nowhere"};
  zq7_service_table table;
  memset(&table, 0, sizeof table);
  zq7_services* services = NULL;
  CHECK(zq7_services_create(&table, &services) == ZQ7_FAILED && services == NULL);
  table.size = sizeof table;
  table.flags = ZQ7_MEMORY_REGISTRY;
  table.clock = &clock;
  table.convention = &convention;
  table.message_box = &box;
  table.drives = &drive;
  table.drive_count = 1;
  const zq7_clock unfilled = {sizeof unfilled, &host, Release, NULL};
  zq7_service_table refused = table;
  refused.clock = &unfilled;
  CHECK(zq7_services_create(&refused, &services) == ZQ7_FAILED && host.released == 0);
  CHECK(zq7_services_create(&table, &services) == ZQ7_OK);

  zq7_object* standard = New("StandardObject", services);
  zq7_value text = Utf8("not a date");
  zq7_value result;
  CHECK(Call(standard, "GETValidDate", &text, 1, &result) == ZQ7_OK);
  CHECK(result.number == Date(2024, 1, 15, 0).number && strstr(host.log, "now(0)") != NULL);
  zq7_value_clear(&text);
  text = Utf8("2/3/2567");
  CHECK(Call(standard, "CTDATE", &text, 1, &result) == ZQ7_OK);
  CHECK(result.number == Date(2024, 3, 2, 0).number && strstr(host.log, "convention(0)") != NULL);
  zq7_value_clear(&text);
  host.fails = host.steps + 1;
  CHECK(Call(standard, "CTYEAR", NULL, 0, &result) == ZQ7_FAILED && ErrorIs(8020, "CTYEAR", ""));
  CHECK(strcmp(zq7_last_error()->text, "the drawer jams") == 0);

  zq7_object* files = New("ASCIIObject", services);
  zq7_value three[3] = {Utf8("D:\\set.ini"), Utf8("Port"), Utf8("9600")};
  const zq7_value shown = Whole(1);
  CHECK(zq7_set_by_name(files, "DisableMsgLevel", &shown) == ZQ7_OK);
  CHECK(Call(files, "Setvalue", three, 3, NULL) == ZQ7_OK);
  CHECK(strstr(host.log, "show(Not found specified folder.") != NULL);
  for (int i = 0; i < 3; ++i) zq7_value_clear(&three[i]);
  zq7_services_release(services);
  zq7_release(standard);
  CHECK(host.released == 0);  // the other object keeps them
  zq7_release(files);
  CHECK(host.released == 3);
  zq7_services_release(NULL);
}

static zq7_object* WrappedPort(Host* host) {
  const zq7_serial_port table = {sizeof table, host,        Release,   SetCommPort, SetSettings,
                                 SetInputLen,  SetPortOpen, SetOutput, PortOpen};
  zq7_object* port = NULL;
  CHECK(zq7_wrap_serial_port(&table, &port) == ZQ7_OK);
  return port;
}

static void TestSerialPort(void) {
  zq7_object* devices = New("PeripheralObject", NULL);
  for (int fails = 0; fails <= 5; fails += 5) {
    Host host = {"", 0, fails, 0};
    zq7_object* port = WrappedPort(&host);
    CHECK(strcmp(zq7_class_of(port)->name, "SerialPort") == 0);
    zq7_value arguments[3] = {Empty(ZQ7_OBJECT), Utf8("kick"), Whole(2)};
    arguments[0].object = port;
    zq7_value result;
    CHECK(Call(devices, "SendCommMsg", arguments, 3, &result) == ZQ7_OK);
    CHECK(result.tag == ZQ7_INTEGER && result.integer == (fails == 0 ? 0 : 8020));
    CHECK(strncmp(host.log, "port(2) settings(9600,N,8,10) ", 30) == 0);
    CHECK((strstr(host.log, "output(kick0) open(0)") != NULL) == (fails == 0));
    host.fails = 0;
    CHECK(zq7_get(port, NumberOf(port, "PortOpen"), &result) == ZQ7_OK);
    CHECK(result.tag == ZQ7_BOOLEAN && result.integer == 1);
    const zq7_value closed = Whole(0);
    CHECK(zq7_set(port, NumberOf(port, "PortOpen"), &closed) == ZQ7_OK);
    CHECK(zq7_set_by_name(port, "commport", &arguments[2]) == ZQ7_OK);
    CHECK(zq7_get_by_name(port, "CommPort", &result) == ZQ7_FAILED);
    CHECK(zq7_set(port, NumberOf(port, "CommPort"), &arguments[1]) == ZQ7_FAILED);
    CHECK(ErrorIs(13, "CommPort", ""));
    zq7_value_clear(&arguments[1]);
    zq7_release(port);
    CHECK(host.released == 1);
  }
  zq7_release(devices);
}

typedef struct Picture {
  void* bytes;
  size_t size;
  float width;
} Picture;

static zq7_status PictureSize(void* context, float* millimetres) {
  *millimetres = ((Picture*)context)->width;
  return *millimetres > 0 ? ZQ7_OK : ZQ7_FAILED;
}
static zq7_status PictureBytes(void* context, const void** bytes, size_t* size) {
  *bytes = ((Picture*)context)->bytes;
  *size = ((Picture*)context)->size;
  return ZQ7_OK;
}

static void TestPicture(const char* file) {
  Picture picture = {NULL, 0, 25};
  const zq7_picture table = {sizeof table, &picture, NULL, PictureSize, PictureSize, PictureBytes};
  zq7_object* object = NULL;
  zq7_value result;
  CHECK(zq7_wrap_picture(&table, &object) == ZQ7_OK);
  CHECK(zq7_get_by_name(object, "Width", &result) == ZQ7_OK);
  CHECK(result.tag == ZQ7_SINGLE && result.number == 25);
  picture.width = 0;
  CHECK(zq7_get_by_name(object, "Height", &result) == ZQ7_FAILED && ErrorIs(440, "Height", ""));
  zq7_object* printer = New("PrintObject", NULL);
  zq7_value source = Empty(ZQ7_OBJECT);
  source.object = object;
  CHECK(Call(printer, "PrintGraphicObject", &source, 1, NULL) == ZQ7_FAILED);
  zq7_release(printer);
  zq7_release(object);

  zq7_value path = Utf8(file);
  CHECK(zq7_picture_of_file(&path, NULL, &object) == ZQ7_OK);
  CHECK(zq7_get_by_name(object, "Width", &result) == ZQ7_OK && result.number > 1);
  zq7_value_clear(&path);
  zq7_release(object);
  path = Utf8("/none.png");
  CHECK(zq7_picture_of_file(&path, NULL, &object) == ZQ7_FAILED && object == NULL);
  CHECK(zq7_last_error()->number == 53);
  zq7_value_clear(&path);
}

// --- Events and threads ---

typedef struct Listener {
  zq7_object* grid;
  int32_t row;
  double cell;
  int released;
  int fails;
} Listener;

static void ReleaseListener(void* context) {
  ++((Listener*)context)->released;
}

static zq7_status OnEvent(void* context, const zq7_member* event, const zq7_value* arguments,
                          size_t count) {
  Listener* listener = (Listener*)context;
  CHECK(strcmp(event->name, "CellDataChange") == 0 && event->kind == ZQ7_EVENT && count == 2);
  listener->row = arguments[0].integer;
  zq7_value cell;
  CHECK(Call(listener->grid, "GetValue", arguments, 2, &cell) == ZQ7_OK);
  listener->cell = cell.number;
  if (!listener->fails) return ZQ7_OK;
  zq7_fail(1234, "no such price");
  return ZQ7_FAILED;
}

static void TestEvents(void) {
  zq7_object* grid = New("GridValueObject", NULL);
  Listener listener = {grid, -1, 0, 0, 0};
  const zq7_event_sink sink = {sizeof sink, &listener, ReleaseListener, OnEvent};
  zq7_subscription* subscription = NULL;
  CHECK(zq7_subscribe(grid, &sink, &subscription) == ZQ7_OK);
  const zq7_value columns = Whole(3);
  CHECK(Call(grid, "SetCols", &columns, 1, NULL) == ZQ7_OK);
  const zq7_value cell[3] = {Whole(4), Whole(1), Number(12.5)};
  CHECK(Call(grid, "Setvalue", cell, 3, NULL) == ZQ7_OK);
  CHECK(listener.row == 4 && listener.cell == 12.5);
  listener.fails = 1;
  CHECK(Call(grid, "Setvalue", cell, 3, NULL) == ZQ7_FAILED && ErrorIs(1234, "Setvalue", ""));
  zq7_unsubscribe(subscription);
  CHECK(listener.released == 1);
  CHECK(Call(grid, "Setvalue", cell, 3, NULL) == ZQ7_OK);
  zq7_value rows;
  CHECK(zq7_get_by_name(grid, "Rows", &rows) == ZQ7_OK && rows.integer == 5);
  zq7_release(grid);
  zq7_unsubscribe(NULL);

  zq7_object* standard = New("StandardObject", NULL);
  CHECK(zq7_subscribe(standard, &sink, &subscription) == ZQ7_FAILED && subscription == NULL);
  CHECK(zq7_last_error()->number == 438 && listener.released == 1);
  zq7_release(standard);
}

/// What a finalizer's thread does. Its errors are its own.
static int Finalizer(void* object) {
  if (zq7_last_error() != NULL) return 1;
  CHECK(zq7_create("Object", NULL, (zq7_object**)NULL) == ZQ7_FAILED);
  zq7_release((zq7_object*)object);
  return 0;
}

static void TestThreads(void) {
  CHECK(zq7_invoke(NULL, 1, NULL, 0, NULL) == ZQ7_FAILED);
  const zq7_error* error = zq7_last_error();
  char before[200];
  snprintf(before, sizeof before, "%s", error->message);
  const char* const kClasses[] = {"GridValueObject", "PrintObject", "RegistryObject"};
  for (size_t i = 0; i < sizeof kClasses / sizeof *kClasses; ++i) {
    thrd_t thread;
    int result = 1;
    CHECK(thrd_create(&thread, Finalizer, New(kClasses[i], NULL)) == thrd_success);
    CHECK(thrd_join(thread, &result) == thrd_success && result == 0);
  }
  CHECK(strcmp(before, zq7_last_error()->message) == 0);
}

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  TestCatalogue();
  TestTexts();
  TestDates();
  TestCalls();
  TestErrors();
  TestServices();
  TestSerialPort();
  TestPicture(argv[1]);
  TestEvents();
  TestThreads();
  if (failed_checks > 0) fprintf(stderr, "%d checks failed\n", failed_checks);
  return failed_checks > 0;
}
