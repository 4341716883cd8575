"""What the package declares is what the headers declare, and what a compiler makes of them."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest
from ctypes import POINTER, c_char, c_char_p, c_int32, c_int64, c_size_t, c_uint8, c_void_p, sizeof

import quorvel
from quorvel import enums
from quorvel._c import functions, library, structs

INCLUDE = pathlib.Path(__file__).parents[3] / "include"
TEXT = "".join(
    re.sub(r"//.*", "", (INCLUDE / name).read_text())
    for name in ("quorvel.h", "quorvel/c_screen.h")
)
STRUCTS = {name: it for name, it in vars(structs).items() if name.startswith("quorvel_")}
TYPES = {
    "void": None,
    "void*": c_void_p,
    "char": c_char,
    "char*": c_void_p,
    "const char*": functions.Text,
    "uint8_t": c_uint8,
    "uint8_t*": c_void_p,
    "const uint8_t*": functions.Data,
    "int32_t": c_int32,
    "int32_t*": POINTER(c_int32),
    "int64_t*": POINTER(c_int64),
    "size_t": c_size_t,
    "size_t*": POINTER(c_size_t),
    "quorvel_result": c_int32,
    "quorvel_platform*": structs.Platform,
    "quorvel_platform**": POINTER(structs.Platform),
    "quorvel_control*": structs.Control,
    "quorvel_control**": POINTER(structs.Control),
    "void (*)(void*)": structs.Task,
    "const char* (*)(void*, int32_t)": structs.TextOfId,
}
IN_CALLBACKS = {functions.Text: c_char_p, functions.Data: c_void_p}


def type_of(declared):
    """The type in a declaration such as "const char* name"."""
    declared = " ".join(declared.split())
    if "(*" in declared:
        declared = re.sub(r"(\w+\*?) \w+([,)])", r"\1\2", re.sub(r"\(\*\w+\)", "(*)", declared))
        return TYPES[declared]
    name = re.sub(r" ?\w+$", "", declared)
    if name.startswith("quorvel_visit_"):
        return structs.Visit
    struct = STRUCTS.get(name.replace("const ", "").rstrip("*"))
    return POINTER(struct) if struct else TYPES[name]


def types_of(arguments):
    parts = re.split(r",(?![^()]*\))", arguments) if arguments != "void" else []
    return [type_of(part) for part in parts]


def signature(prototype):
    return prototype._restype_, list(prototype._argtypes_)


class Declarations(unittest.TestCase):
    def test_functions(self):
        found = re.findall(r"QUORVEL_C_API ([^;]*?)\s*(quorvel_\w+)\((.*?)\);", TEXT, re.DOTALL)
        self.assertGreater(len(found), 70)
        declared = {name: (type_of(f"{gives} x"), types_of(takes)) for gives, name, takes in found}
        ours = {name: (c_int32, takes) for name, takes in functions.RESULTS.items()}
        ours.update(functions.OTHERS)
        for name in ("quorvel_version", "quorvel_last_error"):
            declared[name] = (c_char_p, [])
        self.assertEqual(ours, declared)

    def test_callbacks(self):
        """Those in structs; visitors are all alike."""
        found = re.findall(r"struct (quorvel_\w+) \{(.*?)\n\}", TEXT, re.DOTALL)
        for struct, members in found:
            of_struct = dict(STRUCTS[struct]._fields_)
            callbacks = re.findall(r"(\w+) \(\*(\w+)\)\((.*?)\);", members, re.DOTALL)
            for gives, name, takes in callbacks:
                kinds = [IN_CALLBACKS.get(it, it) for it in types_of(takes)]
                kinds = [c_void_p if isinstance(it, type(POINTER(c_int32))) else it for it in kinds]
                with self.subTest(struct=struct, name=name):
                    self.assertEqual(signature(of_struct[name]), (TYPES[gives], kinds))
        self.assertEqual(
            re.findall(r"typedef (\w+) \(\*quorvel_visit_\w+\)\(void\* user,\s*const", TEXT),
            ["int32_t"] * TEXT.count("(*quorvel_visit_"),
        )

    def test_numbers(self):
        found = re.findall(r"QUORVEL_(\w+) = (\d+)", TEXT)
        declared = {name: int(number) for name, number in found}
        prefixes = {enums.Command: "COMMAND_", enums.LogLevel: "LOG_"}
        of_ours = [it for it in vars(enums).values() if isinstance(it, type)]
        ours = {
            prefixes.get(it, "") + member.name: member.value
            for it in of_ours
            if issubclass(it, enums.Number)
            for member in it
        }
        self.assertEqual(ours, declared)
        self.assertEqual(repr(quorvel.WidgetKind(99)), "<WidgetKind.UNKNOWN_99: 99>")

    @unittest.skipUnless("QUORVEL_CXX" in os.environ, "QUORVEL_CXX names no compiler")
    def test_layouts(self):
        self.assertEqual(sorted(STRUCTS), sorted(set(re.findall(r"\} (quorvel_\w+);", TEXT))))
        lines, ours = [], []
        for name, struct in STRUCTS.items():
            lines.append(f'std::printf("{name} %zu\\n", sizeof({name}));')
            ours.append(f"{name} {sizeof(struct)}")
            for member, kind in struct._fields_:
                place = f"offsetof({name}, {member}), sizeof({name}::{member})"
                lines.append(f'std::printf("{member} %zu %zu\\n", {place});')
                ours.append(f"{member} {getattr(struct, member).offset} {sizeof(kind)}")
        program = "#include <cstddef>\n#include <cstdio>\n#include <quorvel.h>\nint main() {\n"
        program += "\n".join(lines) + "\n}\n"
        environment = {name: it for name, it in os.environ.items() if name != "LD_PRELOAD"}
        with tempfile.TemporaryDirectory() as folder:
            command = [os.environ["QUORVEL_CXX"], "-std=c++20", "-x", "c++", "-"]
            command += [f"-I{INCLUDE}", "-o", "layouts"]
            subprocess.run(
                command, input=program.encode(), cwd=folder, env=environment, check=True
            )
            told = subprocess.run([f"{folder}/layouts"], stdout=subprocess.PIPE, check=True)
        self.assertEqual(told.stdout.decode().splitlines(), ours)

    def test_versions(self):
        parts = re.findall(r"VERSION_[A-Z]+ (\d+)", (INCLUDE / "quorvel/version.h").read_text())
        self.assertEqual(quorvel.__version__, ".".join(parts))
        self.assertEqual(quorvel.library_version(), quorvel.__version__)
        for has, needs, expected in [
            ("0.1.7", "0.1.0", True),
            ("0.2.0", "0.1.0", False),
            ("1.3.0", "1.2.9", True),
            ("1.1.0", "1.2.0", False),
            ("2.2.0", "1.2.0", False),
        ]:
            self.assertEqual(library.fits(has, needs), expected, (has, needs))


if __name__ == "__main__":
    unittest.main()
