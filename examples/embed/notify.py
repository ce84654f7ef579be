#!/usr/bin/env python3
"""Shows what a payload does on a phone, through the C interface: notify.py PAYLOAD.json

The library is looked for in $ORVANTA_LIBRARY, in this repository's build, and where the system has it.
"""

import ctypes
import json
import os
import pathlib
import sys

BUILT = pathlib.Path(__file__).resolve().parents[2] / "build/release/bindings/c/liborvanta.so.1"


def load():
    for name in (os.environ.get("ORVANTA_LIBRARY"), str(BUILT) if BUILT.exists() else None, "liborvanta.so.1"):
        if name:
            library = ctypes.CDLL(name)
            library.orvanta_notify.restype = ctypes.c_void_p  # the pointer itself, for orvanta_free
            library.orvanta_free.argtypes = [ctypes.c_void_p]
            return library


def notify(library, payload, options):
    """Returns the report; raises ValueError for a payload or an option that is wrong."""
    result = library.orvanta_notify(payload.encode(), json.dumps(options).encode())
    if not result:
        raise MemoryError("orvanta_notify")
    report = json.loads(ctypes.string_at(result))
    library.orvanta_free(result)
    if "error" in report:
        raise ValueError(report["error"]["message"])
    return report


def main():
    if len(sys.argv) != 2:
        sys.exit("usage: notify.py PAYLOAD.json")
    with open(sys.argv[1], encoding="utf-8") as file:
        payload = file.read()
    try:
        # The device downloads a small JPEG file after half a second.
        report = notify(load(), payload, {"scenario": {"media": {"delay": 0.5}}})
    except ValueError as error:
        sys.exit(f"{sys.argv[1]}: {error}")
    for event in report["events"]:
        print(f"{event['time']:6.3f} s  {event['stage']:8}  {event['text']}")
    for shown in report["shown"]:
        print("title:", shown["title"], "| body:", shown["body"])
        print("media:", ", ".join(a["type"] for a in shown["attachments"]) or "none")


if __name__ == "__main__":
    main()
