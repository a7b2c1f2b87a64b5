# SPDX-License-Identifier: MIT
"""Reads drawings before and after a repair and prints what the repair broke.

Each line of standard input: path before, tab, path after. Prints one line for each drawing that can't
be read any more, or in which the audit finds errors that were not there before. The last line counts
the pairs that were compared; a drawing that can't be read before is counted as passed over.
"""
import collections
import logging
import sys

import ezdxf
from ezdxf import recover

logging.disable(logging.CRITICAL)


def errors(path):
    try:
        document, _ = recover.readfile(path)
    except Exception:
        # The forgiving reader takes no binary files.
        document = ezdxf.readfile(path)
    auditor = document.audit()
    return collections.Counter(
        (entry.code, entry.message.split("#")[0]) for entry in auditor.errors + auditor.fixes
    )


compared = passed_over = 0
for line in sys.stdin:
    before, after = line.rstrip("\n").split("\t")
    try:
        old = errors(before)
    except Exception:
        passed_over += 1
        continue
    try:
        new = errors(after)
    except Exception as failure:
        print(f"{before}: not readable after the repair: {failure}")
        continue
    compared += 1
    for (code, message), count in (new - old).items():
        print(f"{before}: {count} new: {code} {message}")
print(f"{compared} compared, {passed_over} passed over")
