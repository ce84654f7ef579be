/* Calls every function of the C interface from C, with good and with bad input. */
#include <orvanta.h>
#include <stdio.h>
#include <string.h>

static int failures = 0;

/* Checks that a result holds a string, and frees it. */
static void expect(const char *what, char *result, const char *part) {
  if (result == NULL || strstr(result, part) == NULL) {
    printf("%s: expected %s in %s\n", what, part, result != NULL ? result : "a null pointer");
    ++failures;
  }
  orvanta_free(result);
}

int main(void) {
  const char *payload =
      "{\"aps\": {\"alert\": {\"loc-key\": \"HI\"}, \"mutable-content\": 1},"
      " \"_ov\": {\"mu\": \"https://m.example/a.jpg\"}}";
  const char *options =
      "{\"osVersion\": \"14.0\", \"scenario\": {\"media\": {\"delay\": 2}},"
      " \"strings\": {\"HI\": \"Hello \\u00e9\"}}";

  if (strcmp(orvanta_version(), EXPECTED_VERSION) != 0) {
    printf("version %s\n", orvanta_version());
    ++failures;
  }
  expect("notify", orvanta_notify(payload, options), "\"body\":\"Hello \xC3\xA9\"");
  expect("download", orvanta_notify(payload, options), "\"type\":\"public.jpeg\"");
  expect("offline", orvanta_notify(payload, NULL), "\"code\":-1009");
  expect("model", orvanta_model("OrvantaPushStyle", "{}", "{\"classInfo\": true}"),
         "\"klazz\":\"OrvantaPushStyle\"");
  expect("new model", orvanta_model("OrvantaPushStyle", NULL, NULL), "{");
  expect("schema", orvanta_schema("OrvantaPushStyle"), "\"superclass\":\"OrvantaBaseModel\"");
  expect("all classes", orvanta_schema(NULL), "\"endpoints\"");
  expect("request", orvanta_request("OrvantaFetchInboxRequest", "{}"), "\"HTTPMethod\"");

  expect("not JSON", orvanta_notify("{\"aps\":\n x}", NULL), "payload:2:2: ");
  expect("not an object", orvanta_notify("[]", NULL), "\"kind\":\"unreadable\"");
  expect("null payload", orvanta_notify(NULL, NULL), "\"kind\":\"unreadable\"");
  expect("unknown option", orvanta_notify("{}", "{\"osversion\": \"17.0\"}"),
         "unknown key \\\"osversion\\\"");
  expect("bad option", orvanta_notify("{}", "{\"timeBudget\": -1}"), "\"kind\":\"usage\"");
  expect("unknown class", orvanta_schema("OrvantaPushStyl"), "the nearest is OrvantaPushStyle");
  expect("null class", orvanta_model(NULL, "{}", NULL), "\"kind\":\"usage\"");
  expect("no request", orvanta_request("OrvantaPushStyle", "{}"), "is no request class");
  expect("rejected", orvanta_model("OrvantaPushObject", "{\"aps\": {\"badge\": null}}", NULL),
         "\"kind\":\"rejected\"");
  orvanta_free(NULL);
  return failures != 0;
}
