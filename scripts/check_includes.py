#!/usr/bin/env python3
"""Each file has the headers that it names things from, and each header stands by itself.

What one standard library pulls in by chance, the next version doesn't. So a name of the table below
asks for its header in the file itself, or in one of our own headers that the file includes.

A source includes its own header first: then compiling the source proves that the header needs
nothing before it. Headers without a source of their own are compiled alone.

Usage: check_includes.py [ROOT]     findings on standard output, exit code 1 if there are any
       check_includes.py --compile COMPILER...    also compiles the headers that no source proves
       check_includes.py --self-test
"""

import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys
import tempfile

TOPS = ("src", "apps", "tests", "bench", "fuzz")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.M)
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"'
                             r"|(?<!\w)'(?:\\.|[^'\\\n])+'", re.S)

# Header -> names in std:: that only it, or a header listed with it, is sure to give.
NAMES = {
    "algorithm": "all_of any_of clamp copy_if count count_if equal fill find_if find_if_not is_sorted"
                 " lexicographical_compare lower_bound max max_element min min_element minmax mismatch"
                 " none_of partition remove_if replace replace_if reverse rotate sort stable_sort"
                 " transform unique upper_bound",
    "array": "array",
    "atomic": "atomic",
    "bit": "bit_cast bit_ceil countl_zero countr_zero has_single_bit popcount rotl rotr",
    "charconv": "from_chars from_chars_result to_chars to_chars_result",
    "chrono": "chrono",
    "cmath": "atan2 ceil cos fabs floor fmod hypot isfinite isnan llround lround nearbyint pow"
             " round sin sqrt trunc",
    "condition_variable": "condition_variable",
    "cstddef": "byte max_align_t nullptr_t ptrdiff_t",
    "cstdint": "int8_t int16_t int32_t int64_t intptr_t uint8_t uint16_t uint32_t uint64_t uintptr_t",
    "cstdio": "fclose fflush FILE fopen fprintf fputs fread fseek fwrite printf snprintf",
    "cstdlib": "abort exit getenv malloc strtod strtol",
    "cstring": "memchr memcmp memcpy memmove memset strcmp strlen strncmp strstr",
    "deque": "deque",
    "exception": "current_exception exception exception_ptr rethrow_exception",
    "filesystem": "filesystem",
    "fstream": "fstream ifstream ofstream",
    "functional": "bind_front function invoke not_fn ref reference_wrapper",
    "iomanip": "setfill setprecision setw",
    "iostream": "cerr cin cout",
    "iterator": "back_inserter distance istreambuf_iterator",
    "limits": "numeric_limits",
    "list": "list",
    "map": "map multimap",
    "memory": "make_shared make_unique make_unique_for_overwrite shared_ptr unique_ptr weak_ptr"
              " enable_shared_from_this addressof",
    "mutex": "call_once lock_guard mutex once_flag scoped_lock unique_lock",
    "new": "bad_alloc nothrow",
    "numbers": "numbers",
    "numeric": "accumulate gcd inner_product iota lcm midpoint partial_sum reduce",
    "optional": "nullopt optional",
    "ostream": "endl flush",
    "queue": "priority_queue queue",
    "regex": "regex smatch",
    "set": "multiset set",
    "span": "span",
    "sstream": "istringstream ostringstream stringstream",
    "stdexcept": "invalid_argument logic_error out_of_range runtime_error",
    "string": "getline stod stoi string string_literals stoul to_string u16string u32string",
    "string_view": "string_view",
    "system_error": "errc error_code system_error",
    "thread": "jthread thread this_thread",
    "tuple": "make_tuple tie tuple",
    "type_traits": "conditional_t decay_t enable_if_t is_base_of_v is_enum_v is_same_v"
                   " remove_cvref_t underlying_type_t",
    "unordered_map": "unordered_map",
    "unordered_set": "unordered_set",
    "utility": "as_const declval exchange forward in_place make_pair move pair swap",
    "variant": "get_if holds_alternative monostate variant visit",
    "vector": "vector",
}
HEADER_OF = {name: header for header, names in NAMES.items() for name in names.split()}
# Headers whose names a header must declare as well.
GIVES = {
    "charconv": {"system_error"}, "filesystem": {"system_error"},
    "fstream": {"ostream", "istream"}, "iostream": {"ostream", "istream"},
    "sstream": {"ostream", "istream", "string"}, "string": {"string_view"},
    "cinttypes": {"cstdint"},
}
USE = re.compile(r"\bstd::(?:ranges::)?(\w+)")


class Tree:
    """All sources below a root, with what each includes."""

    def __init__(self, root):
        self.root = root
        self.files = sorted(p for top in TOPS for p in (root / top).rglob("*")
                            if p.suffix in (".h", ".cpp") and p.is_file())
        self.known = {}

    def includes(self, path):
        """([standard or foreign headers], [our own headers as paths]) of a file, in its order."""
        if path not in self.known:
            text = path.read_text(encoding="utf-8", errors="replace")
            system, ours = [], []
            for kind, name in INCLUDE.findall(text):
                if kind == "<":
                    system.append(name)
                else:
                    ours.append(self.resolve(path, name))
            self.known[path] = (system, [p for p in ours if p])
        return self.known[path]

    def resolve(self, path, name):
        places = (self.root / "src" / name, self.root / "tests" / name, path.parent / name)
        return next((p for p in places if p.is_file()), None)

    def reachable(self, path):
        """Standard headers that the file gets from itself and, through ours, from them."""
        seen, todo, found = set(), [path], set()
        while todo:
            current = todo.pop()
            if current in seen:
                continue
            seen.add(current)
            system, ours = self.includes(current)
            found.update(system)
            todo += ours
        for header in list(found):
            found |= GIVES.get(header, set())
        return found

    def own_header(self, source):
        header = source.with_suffix(".h")
        return header if header.is_file() else None

    def proves(self, source):
        """The header that compiling this source proves to stand by itself, or None."""
        text = source.read_text(encoding="utf-8", errors="replace")
        first = INCLUDE.search(text)
        header = self.own_header(source)
        if first and header and self.resolve(source, first.group(2)) == header:
            return header
        return None


def missing_headers(tree, path):
    """`LINE: text` for each header that a name of the file asks for in vain."""
    text = path.read_text(encoding="utf-8", errors="replace")
    plain = COMMENT_OR_TEXT.sub(lambda m: re.sub(r"[^\n]", " ", m.group()), text)
    there, told = tree.reachable(path), set()
    for match in USE.finditer(plain):
        header = HEADER_OF.get(match.group(1))
        if header and header not in there and header not in told:
            told.add(header)
            yield plain.count("\n", 0, match.start()) + 1, f"<{header}> for {match.group()}"


def check(root):
    """All findings, as `FILE:LINE: rule: text`, and the headers that no source proves."""
    tree, findings, proved = Tree(root), [], set()
    for path in tree.files:
        relative = path.relative_to(root).as_posix()
        findings += [f"{relative}:{line}: missing: {text}"
                     for line, text in missing_headers(tree, path)]
        if path.suffix != ".cpp":
            continue
        if header := tree.proves(path):
            proved.add(header)
        elif tree.own_header(path) in tree.includes(path)[1]:
            findings.append(f"{relative}:1: first: its own header is not its first")
    alone = [p for p in tree.files if p.suffix == ".h" and
             (p not in proved or p.is_relative_to(root / "tests"))]
    return findings, alone


def compile_alone(root, compiler, headers):
    """A finding for each header that doesn't compile with nothing before it."""
    def one(header):
        done = subprocess.run([*compiler, "-x", "c++", "-std=c++20", "-fsyntax-only", "-w", "-Isrc",
                               "-Itests", header], cwd=root, capture_output=True, text=True,
                              check=False)
        return [] if done.returncode == 0 else [f"{header}:1: alone: {done.stderr.strip()}"]

    with concurrent.futures.ThreadPoolExecutor(len(os.sched_getaffinity(0))) as pool:
        return sum(pool.map(one, [str(h.relative_to(root)) for h in headers]), [])


def self_test():
    """Plants one violation of each rule in a small tree and wants exactly those reported."""
    sound = {
        "src/base/Text.h": "#include <string>\nstd::string_view a(std::string text);\n",
        "src/base/Text.cpp": '#include "base/Text.h"\n// std::sort\nauto t = "std::vector";\n',
        "src/base/Plain.h": '#include "base/Text.h"\ninline std::string b;\n',
    }
    planted = {
        "missing": ("src/base/Text.cpp", '#include "base/Text.h"\nstd::int32_t d;\nstd::int8_t e;\n'),
        "missing ": ("src/base/Bad.cpp", "#include <string>\nauto a = std::ranges::find_if(b, c);\n"),
        "first": ("src/base/Plain.cpp", '#include "base/Text.h"\n\n#include "base/Plain.h"\n'),
        "alone": ("src/base/Bad.h", "inline Unknown a;\n"),
    }
    failures = []
    for rule, plant in [(None, None), *planted.items()]:
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder)
            for name, text in (sound | dict([plant] if plant else [])).items():
                (root / name).parent.mkdir(parents=True, exist_ok=True)
                (root / name).write_text(text)
            found, alone = check(root)
            found += compile_alone(root, ["c++"], alone)
        wanted = 0 if rule is None else 1
        if len(found) != wanted or any(f": {rule.strip()}: " not in f for f in found):
            failures.append(f"planted {rule and rule.strip()}: wanted {wanted} finding, got {found}")
    for failure in failures:
        print(failure)
    print(f"self-test: {1 + len(planted) - len(failures)} passed, {len(failures)} failed")
    return 1 if failures else 0


def main():
    words = sys.argv[1:]
    if words == ["--self-test"]:
        return self_test()
    compiler = words[1:] if words[:1] == ["--compile"] else None
    root = pathlib.Path(words[0] if words and compiler is None else
                        pathlib.Path(__file__).parent.parent).resolve()
    findings, alone = check(root)
    if compiler:
        findings += compile_alone(root, compiler, alone)
    for finding in findings:
        print(finding)
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
