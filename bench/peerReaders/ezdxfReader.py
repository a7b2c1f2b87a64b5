# SPDX-License-Identifier: MIT
"""ezdxfReader.py FILE reads a drawing and prints the number of its entities."""
import sys

import ezdxf

print(len(ezdxf.readfile(sys.argv[1]).modelspace()))
