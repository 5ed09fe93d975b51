"""Replaces the moment that widl writes into a type library, as a text and as a number after it, so
that the same files make the same bytes: `without_time.py FILE`."""

import pathlib
import re
import sys

MOMENT = re.compile(
    rb"(Created by WIDL [^\n]* at )"
    rb"([A-Z][a-z]{2} [A-Z][a-z]{2} [ \d]\d [\d:]{8} \d{4})"
    rb"(.{0,8}?\x13\x00)(.{4})",  # a number without sign of 32 bits
    re.DOTALL,
)

library = pathlib.Path(sys.argv[1])
content, found = MOMENT.subn(
    lambda match: match[1] + b"-" * len(match[2]) + match[3] + bytes(4), library.read_bytes()
)
if found != 1:
    sys.exit(f"{library} has {found} moments of its making instead of one")
library.write_bytes(content)
