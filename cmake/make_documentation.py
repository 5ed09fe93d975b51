#!/usr/bin/env python3
"""Writes the public headers' documentation of classes, members and enumerations as C++ tables.

    make_documentation.py OUTPUT HEADER...

It reads comments, banners and the members of enumerations, never signatures:

- "///" lines belong to the class, enumeration or member right below them, "///<" to the one
  on its line. "//" lines among them are only for readers of the header.
- The first paragraph of a comment is the one-line help; the others are the details.
- "// --- Subject: src/file.cc ---" is the subject of the members below it.
- A sentence that names `something` is also the help of a parameter of that name.
- The members of a class's listener are the events of the class.
"""

import pathlib
import re
import sys

BANNER = re.compile(r"^  // --- (.+): src/\S+\.cc(?:; \S+)? ---$")
CLASS = re.compile(r"^class ZQ7STANDARD_EXPORT (\w+) .*\{")
ENUMERATION = re.compile(r"^enum (\w+) :.*\{")
ENUMERATOR = re.compile(r"^  (\w+) = [^/]*(?:///< (.*))?$")
MEMBER = re.compile(r"^  [\w:<> ]+ (\w+)\(")
SENTENCE_END = re.compile(r'(?<=\.)\s+(?=[A-Z`"(])')


def literal(text):
    return f'R"doc({text})doc"'


class Comment:
    """The lines of a comment as help and details."""

    def __init__(self, lines):
        help_lines, _, details = "\n".join(lines).strip("\n").partition("\n\n")
        self.help = " ".join(help_lines.split("\n"))
        self.details = details.strip("\n")

    def parameters(self):
        """The sentences that name each word in backticks."""
        found = {}
        for paragraph in [self.help, *self.details.split("\n\n")]:
            for sentence in SENTENCE_END.split(" ".join(paragraph.split())):
                for name in dict.fromkeys(re.findall(r"`(\w+)`", sentence)):
                    found.setdefault(name, []).append(sentence)
        return {name: " ".join(sentences) for name, sentences in found.items()}


class Tables:
    """What was found in the headers."""

    def __init__(self):
        self.members = {}  # "Class" or "Class.Member": subject and comment
        self.enumerations = {}  # name: comment, and the members with their comments

    def read(self, path):
        owner = enumeration = None
        subject, lines = "", []
        for line in path.read_text(encoding="utf-8").splitlines():
            text = line.strip()
            if text.startswith("///") and not text.startswith("///<"):
                lines.append(text[3:].removeprefix(" "))
                continue
            if text.startswith("//") and lines:
                continue
            comment, lines = Comment(lines), []
            if banner := BANNER.match(line):
                subject = banner[1]
            elif found := CLASS.match(line):
                owner, subject = found[1].replace("Listener", "Object"), ""
                if found[1] == owner:
                    self.members[owner] = ("", comment)
            elif found := ENUMERATION.match(line):
                enumeration = found[1]
                self.enumerations[enumeration] = (comment, [])
            elif enumeration and (found := ENUMERATOR.match(line)):
                self.enumerations[enumeration][1].append((found[1], found[2] or ""))
            elif line.startswith("};") or line.startswith(" private:"):
                owner = enumeration = None
            elif owner and (found := MEMBER.match(line)):
                beside = line.partition("///< ")[2]
                comment = Comment([beside]) if beside else comment
                if comment.help:
                    self.members[f"{owner}.{found[1]}"] = (subject, comment)

    def write(self, file):
        print("// Made by cmake/make_documentation.py from the public headers.\n", file=file)
        print("constexpr auto kMembers = std::to_array<MemberRow>({", file=file)
        for name, (subject, comment) in sorted(self.members.items()):
            said = ", ".join(map(literal, (subject, comment.help, comment.details)))
            print(f'    {{"{name}", {{{said}}}}},', file=file)
        print("});\n\nconstexpr auto kParameters = std::to_array<ParameterHelpRow>({", file=file)
        for name, (_, comment) in sorted(self.members.items()):
            for parameter, sentences in sorted(comment.parameters().items()):
                print(f'    {{"{name}", "{parameter}", {literal(sentences)}}},', file=file)
        print("});\n", file=file)
        for name, (_, members) in self.enumerations.items():
            print(f"constexpr auto k{name} = std::to_array<EnumeratorInfo>({{", file=file)
            for member, said in members:
                print(f'    {{"{member}", {member}, {literal(said)}}},', file=file)
            print("});\n", file=file)
        print("constexpr auto kEnumerations = std::to_array<EnumerationInfo>({", file=file)
        for name, (comment, _) in self.enumerations.items():
            row = [f'"{name}"', f"k{name}", literal(comment.help), literal(comment.details)]
            print(f"    {{{', '.join(row)}}},", file=file)
        print("});", file=file)


def main():
    tables = Tables()
    for header in sys.argv[2:]:
        tables.read(pathlib.Path(header))
    with open(sys.argv[1], "w", encoding="utf-8") as file:
        tables.write(file)


if __name__ == "__main__":
    main()
