"""Calls the C interface through ctypes, on many threads, and lists what the library exports."""

import ctypes
import json
import subprocess
import sys
import threading

library_path, examples = sys.argv[1:]
library = ctypes.CDLL(library_path)
library.orvanta_notify.restype = ctypes.c_void_p
library.orvanta_free.argtypes = [ctypes.c_void_p]


def notify(payload, options=None):
    result = library.orvanta_notify(payload, options)
    try:
        return json.loads(ctypes.string_at(result))
    finally:
        library.orvanta_free(result)


with open(f"{examples}/payloads/campaign.json", "rb") as file:
    campaign = file.read()
expected = notify(campaign, b'{"scenario": {"media": {}}}')
assert expected["format"] == 2 and expected["shown"][0]["attachments"], expected

reports = []
threads = [
    threading.Thread(
        target=lambda: reports.extend(notify(campaign, b'{"scenario": {"media": {}}}') for _ in range(50))
    )
    for _ in range(4)
]
for thread in threads:
    thread.start()
for thread in threads:
    thread.join()
assert len(reports) == 200 and all(report == expected for report in reports)

exported = subprocess.run(
    ["nm", "-D", "--defined-only", library_path], check=True, capture_output=True, text=True
).stdout.split("\n")
names = sorted(line.split()[-1].split("@")[0] for line in exported if line and " A " not in line)
functions = ["free", "model", "notify", "request", "schema", "version"]
assert names == ["orvanta_" + function for function in functions], names
