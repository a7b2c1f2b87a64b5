# SPDX-License-Identifier: MIT
"""One module a drawing; what they share is in common."""
