// The five tasks of docs/hosts.md from C.
#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <zq7standard.h>

static zq7_value Text(const char* utf8) {
  zq7_value text;
  if (zq7_text_of_utf8(utf8, strlen(utf8), &text) != ZQ7_OK) abort();
  return text;
}

static zq7_value Long(int32_t number) {
  return (zq7_value){.tag = ZQ7_LONG, .integer = number};
}

static zq7_value Double(double number) {
  return (zq7_value){.tag = ZQ7_DOUBLE, .number = number};
}

/// Calls an operation and clears its arguments.
static zq7_status Call(zq7_object* object, const char* operation, zq7_argument* arguments,
                       size_t count, zq7_value* result) {
  const zq7_status status = zq7_invoke_by_name(object, operation, arguments, count, result);
  for (size_t i = 0; i < count; ++i) zq7_value_clear(&arguments[i].value);
  return status;
}

static void Print(zq7_value* text) {
  char line[400];
  zq7_utf8_of_text(text, line, sizeof line);
  puts(line);
  zq7_value_clear(text);
}

static zq7_status DayFirstBuddhist(void* context, int32_t* day_first, int32_t* buddhist) {
  (void)context;
  *day_first = 1;
  *buddhist = 1;
  return ZQ7_OK;
}

static zq7_status OnCell(void* context, const zq7_member* event, const zq7_value* arguments,
                         size_t count) {
  (void)context, (void)event, (void)count;
  printf("row %" PRId32 ", column %" PRId32 "\n", arguments[0].integer, arguments[1].integer);
  return ZQ7_OK;
}

int main(void) {
  zq7_value result;
  zq7_object* baht = NULL;
  zq7_create("BahtStringObject", NULL, &baht);
  zq7_argument amount[] = {{NULL, Double(121.50)}};
  if (Call(baht, "BahtString", amount, 1, &result) == ZQ7_OK) Print(&result);
  zq7_release(baht);

  const zq7_convention convention = {.size = sizeof convention, .current = DayFirstBuddhist};
  const zq7_drive drive = {'C', "."};
  const zq7_service_table table = {
      .size = sizeof table, .convention = &convention, .drives = &drive, .drive_count = 1};
  zq7_services* services = NULL;
  zq7_object* standard = NULL;
  zq7_services_create(&table, &services);
  zq7_create("StandardObject", services, &standard);
  zq7_argument typed[] = {{NULL, Text("31/1/2567")}};
  zq7_argument later[] = {{"InDate", {0}}, {"NumberOfMonth", Long(1)}};
  zq7_argument date[] = {{NULL, {0}}};
  if (Call(standard, "CTDATE", typed, 1, &later[0].value) == ZQ7_OK &&
      Call(standard, "AddMonth", later, 2, &date[0].value) == ZQ7_OK &&
      Call(standard, "FormatQuery", date, 1, &result) == ZQ7_OK) {
    Print(&result);
  }

  zq7_object* settings = NULL;
  zq7_create("ASCIIObject", services, &settings);
  zq7_argument stored[] = {
      {NULL, Text("C:\\settings.ini")}, {NULL, Text("Port")}, {NULL, Text("9600")}};
  zq7_argument read[] = {{NULL, Text("C:\\settings.ini")}, {NULL, Text("Port")}};
  if (Call(settings, "Setvalue", stored, 3, NULL) == ZQ7_OK &&
      Call(settings, "GetValue", read, 2, &result) == ZQ7_OK) {
    Print(&result);
  }
  zq7_release(settings);

  const zq7_event_sink sink = {.size = sizeof sink, .raise = OnCell};
  zq7_object* grid = NULL;
  zq7_subscription* subscription = NULL;
  zq7_create("GridValueObject", NULL, &grid);
  zq7_subscribe(grid, &sink, &subscription);
  zq7_argument columns[] = {{NULL, Long(3)}};
  zq7_argument cell[] = {{NULL, Long(7)}, {NULL, Long(2)}, {NULL, Double(12.5)}};
  Call(grid, "SetCols", columns, 1, NULL);
  Call(grid, "Setvalue", cell, 3, NULL);
  zq7_unsubscribe(subscription);
  zq7_release(grid);

  zq7_argument no_date[] = {{NULL, Text("31/2/2567")}};
  if (Call(standard, "CTDATE", no_date, 1, &result) != ZQ7_OK) {
    printf("error %" PRId32 "\n", zq7_last_error()->number);
  }
  zq7_release(standard);
  zq7_services_release(services);
}
