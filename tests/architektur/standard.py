"""The standard library's names and the headers that bring them. The precompiled headers hide what a file forgets to include."""

import re
from collections import defaultdict

# The headers, of which any brings the name of the standard library, for the names that our sources use.
STANDARD = defaultdict(set)
for _kopf, _namen in {
    "algorithm": "ranges clamp count find_if max min mismatch replace rotate sort stable_sort", "array": "array size ssize end",
    "bit": "rotl", "charconv": "chars_format from_chars to_chars", "chrono": "chrono", "clocale": "setlocale",
    "cmath": "abs ceil fabs floor llround lround pow", "cstddef": "size_t ptrdiff_t byte nullptr_t",
    "cstdint": "int8_t int16_t int32_t int64_t uint8_t uint16_t uint32_t uint64_t intptr_t uintptr_t",
    "cstdio": "fflush fgetc ftell", "cstdlib": "getenv", "cstring": "memchr", "ctime": "localtime strftime time_t",
    "deque": "deque", "exception": "exception", "filesystem": "filesystem", "functional": "function less hash",
    "future": "async future_status launch", "initializer_list": "initializer_list", "iosfwd": "ostream istream",
    "iostream": "cerr cout", "iterator": "back_inserter next prev size ssize end", "limits": "numeric_limits",
    "map": "map multimap", "memory": "unique_ptr shared_ptr weak_ptr make_unique make_shared", "numeric": "accumulate iota",
    "optional": "optional nullopt make_optional", "ostream": "flush", "random": "mt19937_64 random_device", "set": "set multiset",
    "span": "span", "sstream": "istringstream ostringstream", "stdexcept": "runtime_error logic_error out_of_range invalid_argument",
    "string": "string u32string u8string wstring erase getline size ssize end to_string to_wstring",
    "string_view": "string_view u32string_view wstring_view", "system_error": "error_code errc system_error", "tuple": "tuple tie",
    "type_traits": "is_same_v decay_t enable_if_t", "unordered_map": "unordered_map", "unordered_set": "unordered_set",
    "utility": "move forward exchange pair swap as_const", "variant": "variant visit get_if monostate",
    "vector": "vector erase erase_if size ssize end"}.items():
    for _name in _namen.split():
        STANDARD[_name].add(_kopf)
# Containers bring what their own declarations need.
BRINGT_MIT = {kopf: ["cstddef", "utility", "initializer_list"] for koepfe in STANDARD.values() for kopf in koepfe}
BRINGT_MIT |= {"iostream": ["iosfwd", "ostream"], "ostream": ["iosfwd"], "string": BRINGT_MIT["string"] + ["string_view"],
               "filesystem": BRINGT_MIT["string"] + ["string_view", "system_error"]}


def fehlender_standard(datei, text, koepfe):
    """What the file uses of the standard library and none of these standard headers brings, which reach it."""
    da = {gebracht for kopf in koepfe for gebracht in [kopf, *BRINGT_MIT.get(kopf, [])]}
    for name in sorted(set(re.findall(r"\bstd::(\w+)", re.sub(r"//.*", "", text)))):
        if name not in STANDARD:
            yield f"src/{datei} uses std::{name}: say in STANDARD (tests/architektur/standard.py) which header brings it."
        elif not STANDARD[name] & da:
            yield (f"src/{datei} does not compile alone: it uses std::{name}, include "
                   + " or ".join(f"<{kopf}>" for kopf in sorted(STANDARD[name])) + ".")
