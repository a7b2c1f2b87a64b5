#!/bin/sh
# SPDX-License-Identifier: MIT
# Turns the outputs that failed tests left beside their references into the references. Read the
# difference before you commit it.
set -eu
cd "$(dirname "$0")"
find . -name '*.out.*' | while read -r output; do
    case $output in
    */expected.out.json) reference=$(dirname "$output")/expected.json ;;
    */fixed.out.dxf) reference=$(dirname "$output")/fixed.expected.dxf ;;
    *)
        echo "no reference is known for $output" >&2
        exit 1
        ;;
    esac
    mv "$output" "$reference"
    echo "updated $reference"
done
