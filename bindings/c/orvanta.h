#ifndef ORVANTA_H
#define ORVANTA_H

/*
 * The C interface: what a payload becomes, and what the library's models make of a dictionary.
 *
 *     char *report = orvanta_notify(payload, "{\"osVersion\": \"17.0\"}");
 *     puts(report);
 *     orvanta_free(report);
 *
 * Strings are UTF-8 and end with a zero. Each function that returns char * returns a JSON object in
 * memory that the caller passes to orvanta_free, or a null pointer when memory is short. An error
 * is the object {"error": {"kind": K, "message": M}}, where K is "usage" (an unknown class or
 * option), "unreadable" (not JSON, or not an object), "rejected" (a model rejects its dictionary)
 * or "internal".
 *
 * Any thread may call any function, also at the same time. Nothing is written, nothing is fetched,
 * and no exception leaves the library.
 */

#if defined(__GNUC__)
#define ORVANTA_API __attribute__((visibility("default")))
#else
#define ORVANTA_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Returns the library's version, "1.2.3", which lives as long as the process. */
ORVANTA_API const char* orvanta_version(void);

/*
 * Runs the notification service on a payload, on a simulated device in memory, and returns the
 * report.
 *
 * `options` is a null pointer or a JSON object with any of
 *   "osVersion"   "17.0"
 *   "timeBudget"  seconds, 30
 *   "scenario"    what the device does; the keys of a scenario file. Its "media" is the result of
 * the download: without it the device is offline. "strings"     the bundle's localized strings,
 * {key: string}
 */
ORVANTA_API char* orvanta_notify(const char* payload, const char* options);

/*
 * Makes a model of a class from a JSON object, or a new one with its defaults for a null pointer,
 * and returns the dictionary that goes over the wire. `options`: {"classInfo": true} adds "klazz".
 */
ORVANTA_API char* orvanta_model(const char* class_name, const char* json, const char* options);

/* Returns the tables of a class, or of all classes for a null pointer. */
ORVANTA_API char* orvanta_schema(const char* class_name);

/* Restores a request of a class and returns the call that it makes. */
ORVANTA_API char* orvanta_request(const char* class_name, const char* json);

/* Frees what a function returned; a null pointer is allowed. */
ORVANTA_API void orvanta_free(char* result);

#ifdef __cplusplus
}
#endif

#endif
