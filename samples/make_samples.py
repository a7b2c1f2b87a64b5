#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Writes the sample drawings of this folder.

    samples/make_samples.py [FOLDER]

Without FOLDER the drawings beside this script are replaced. The same script gives the same bytes
whenever and wherever it runs, so a difference in the drawings is a difference in the recipes.
Needs the Debian package python3-ezdxf.
"""

import os
import sys
from pathlib import Path

# Sets decide about the order of some sections, and the order of a set about nothing but the seed,
# which is read when the interpreter starts.
if os.environ.get("PYTHONHASHSEED") != "0":
    os.environ["PYTHONHASHSEED"] = "0"
    os.execv(sys.executable, [sys.executable, *sys.argv])

# Both would let the machine decide about digits and text widths. They are read by the first import.
os.environ["EZDXF_DISABLE_C_EXT"] = "1"
sys.dont_write_bytecode = True

import ezdxf  # noqa: E402

ezdxf.options.use_matplotlib = False
ezdxf.options.write_fixed_meta_data_for_testing = True

from recipes import dimension_styles, flange, floor_plan, layers, line_styles  # noqa: E402
from recipes import site_plan, standards, text_styles  # noqa: E402
from recipes.common import write  # noqa: E402

DRAWINGS = {
    "office-standard.dxf": standards.office,
    "mechanical-standard.dxf": standards.mechanical,
    "site-standard.dxf": standards.site,
    "floor-plan.dxf": floor_plan.make,
    "flange.dxf": flange.make,
    "site-plan.dxf": site_plan.make,
    "layers-good.dxf": layers.good,
    "layers-bad.dxf": layers.bad,
    "linestyles-good.dxf": line_styles.good,
    "linestyles-bad.dxf": line_styles.bad,
    "textstyles-good.dxf": text_styles.good,
    "textstyles-bad.dxf": text_styles.bad,
    "dimstyles-good.dxf": dimension_styles.good,
    "dimstyles-bad.dxf": dimension_styles.bad,
}


def main(arguments):
    if len(arguments) > 1 or "--help" in arguments:
        print(__doc__.strip())
        return 0 if "--help" in arguments else 2
    folder = Path(arguments[0]) if arguments else Path(__file__).resolve().parent
    folder.mkdir(parents=True, exist_ok=True)
    for name, make in DRAWINGS.items():
        write(make(), folder / name)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
