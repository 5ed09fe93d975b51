// An amount in Thai words, from C: words 121.50
#include <stdio.h>
#include <stdlib.h>
#include <zq7standard.h>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  zq7_object* baht = NULL;
  zq7_value words;
  const zq7_argument amount = {NULL, {.tag = ZQ7_DOUBLE, .number = atof(argv[1])}};
  char text[400];
  if (zq7_create("BahtStringObject", NULL, &baht) != ZQ7_OK ||
      zq7_invoke_by_name(baht, "BahtString", &amount, 1, &words) != ZQ7_OK) {
    fprintf(stderr, "%s\n", zq7_last_error()->message);
    return 1;
  }
  zq7_utf8_of_text(&words, text, sizeof text);
  puts(text);
  zq7_value_clear(&words);
  zq7_release(baht);
}
