"""Shows values of OstraParameters and OstraUnits in gdb by type identifier and name.

A library may be without debug information, so that gdb does not know the data behind a handle. It is read as it lies in
memory: in 64-bit programs with libstdc++. What does not look like that data is shown as the pointer that it is.
"""

import codecs
import os
import struct

import gdb
import gdb.printing

WORD = 8
STRING = 4 * WORD  # the size of a std::string
SHOWN = 200  # the bytes that are shown of a text
CHECKED = 1024  # the texts of a block that are looked at; nonsense may claim billions


class Damaged(Exception):
    """This memory cannot be what it should be."""


def read(format, address):
    size = struct.calcsize("=" + format)
    return struct.unpack("=" + format, bytes(gdb.selected_inferior().read_memory(address, size)))


def text(address, length):
    """The beginning of a text, as far as it can be shown on this terminal."""
    if length:
        read("s", address + length - 1)  # a length of nonsense leads out of the memory
    shown = min(length, SHOWN)
    content = bytes(gdb.selected_inferior().read_memory(address, shown)) if shown else b""
    characters = codecs.getincrementaldecoder("utf-8")("backslashreplace").decode(content, shown == length)
    printable = "".join(c if c.isprintable() else c.encode("unicode_escape").decode() for c in characters)
    charset = gdb.target_charset()
    return printable.encode(charset, "backslashreplace").decode(charset) + ("..." if shown < length else "")


def texts(block):
    """What a Texts holds: a count of owners, one of texts, where each text ends, and the texts."""
    owners, count = read("II", block)
    ends = read(f"{min(count, CHECKED)}I", block + 8)
    begins = (0,) + ends
    if owners == 0 or any(begin > end for begin, end in zip(begins, ends)):
        raise Damaged
    characters = block + 8 + 4 * count
    return [(characters + begin, end - begin) for begin, end in zip(begins, ends)]


def own_texts(data):
    """The texts of a parameter, which lie behind its data: behind the group, where each begins and the last one ends."""
    places = read("5I", data + WORD)
    if any(begin > end for begin, end in zip(places, places[1:])):
        raise Damaged
    return [(data + WORD + begin, end - begin) for begin, end in zip(places, places[1:])]


def texts_of(data, least):
    found = texts(*read("Q", data))
    if len(found) < least:
        raise Damaged
    return found


def quoted(address, length):
    return f'"{text(address, length)}"'


def listed(texts):
    """The texts in braces, and no more of them than a text is long."""
    parts, length = [], 0
    for part in texts:
        if length >= SHOWN:
            parts.append("...")
            break
        parts.append(quoted(*part))
        length += len(parts[-1])
    return "{" + ", ".join(parts) + "}"


def string(address):
    """A std::string begins with the address and the length of its text."""
    return read("QQ", address)


def flag(address):
    (byte,) = read("B", address)
    if byte > 1:
        raise Damaged
    return byte == 1


def named(data):
    typeid, name = texts_of(data, 2)[:2]
    return f"{text(*typeid)} {quoted(*name)}"


def parameter(data):
    typeid, name = own_texts(data)[:2]
    return f"{text(*typeid)} {quoted(*name)}"


def identified(data):
    return text(*texts_of(data, 1)[0])


def enumeration(data):
    typeid, *identifiers = texts_of(data, 1)
    return f"{text(*typeid)} {listed(identifiers)}"


def bounded(number):
    def show(data):
        parts = [identified(data)]
        for preposition, place in (("from", 0), ("to", 1)):
            if flag(data + 3 * WORD + place):
                parts.append(f"{preposition} {read(number, data + (1 + place) * WORD)[0]}")
        return " ".join(parts)

    return show


def major_component(data):
    return named(*read("Q", data))  # its domain


def set_component(data):
    return listed(texts_of(data, 0))


def regex_component(data):
    return quoted(*texts_of(data, 1)[0])


def fault(data):
    length, code, severity = read("QQI", data)
    if severity > 1:
        raise Damaged
    return f"{('error', 'warning')[severity]} {text(code, length)} {quoted(*string(data + 3 * WORD))}"


def unit(data):
    return f"{text(*string(data))} {quoted(*string(data + STRING))}"


CLASSES = {
    "Parameters::BoolParameter": parameter,
    "Parameters::BoolSpec": named,
    "Parameters::Category": named,
    "Parameters::Enumeration": enumeration,
    "Parameters::EnumerationParameter": parameter,
    "Parameters::Fault": fault,
    "Parameters::FloatRange": bounded("d"),
    "Parameters::GeneralSpec": named,
    "Parameters::IntParameter": parameter,
    "Parameters::IntRange": bounded("q"),
    "Parameters::IntSpec": named,
    "Parameters::MajorCategoryComponent": major_component,
    "Parameters::MeasurableParameter": parameter,
    "Parameters::MeasurableSpec": named,
    "Parameters::ParameterCore": parameter,
    "Parameters::ReferenceParameter": parameter,
    "Parameters::ReferenceSpec": named,
    "Parameters::RegexStringRangeComponent": regex_component,
    "Parameters::SetStringRangeComponent": set_component,
    "Parameters::SpecCore": named,
    "Parameters::StringParameter": parameter,
    "Parameters::StringRange": identified,
    "Parameters::StringSpec": named,
    "Parameters::SubCategoryComponent": identified,
    "Parameters::Taxon": named,
    "Units::Unit": unit,
}


def members(value):
    """The pointers in a value, however its members are called."""
    type = value.type.strip_typedefs()
    if type.code == gdb.TYPE_CODE_PTR:
        yield int(value)
    elif type.code == gdb.TYPE_CODE_STRUCT:
        for field in type.fields():
            yield from members(value[field])


def pointers(handle, count):
    """The pointers of a handle, of which the first is that to its data."""
    if handle.address is None:  # what a function returned
        found = list(members(handle))
        if len(found) != count:
            raise ValueError
        return found
    return read(count * "Q", int(handle.address))  # a compiler may have said nothing of its members


# Data that nobody owns is gone; its memory may still look like it.


def owned(handle):
    """The data of a handle of OstraParameters, before which lies the number of its owners."""
    (data,) = pointers(handle, 1)
    return data, lambda: read("i", data - WORD)[0] > 0


def shared(handle):
    """The data of a handle of OstraUnits, a std::shared_ptr."""
    data, counts = pointers(handle, 2)

    def is_owned():
        functions, owners, others = read("Qii", counts)
        read("Q", functions)
        return owners > 0 and others > 0

    return data, is_owned


class HandlePrinter:
    def __init__(self, name, show, handle):
        self.name = name
        self.show = show
        self.handle = handle

    def to_string(self):
        handle = self.handle
        if handle.type.code in (gdb.TYPE_CODE_REF, gdb.TYPE_CODE_RVALUE_REF):
            handle = handle.referenced_value()
        try:
            data, is_owned = (shared if self.show is unit else owned)(handle)
        except (ValueError, gdb.error):
            return f"{self.name} <unknown>"
        try:
            if not is_owned():
                raise Damaged
            return f"{self.name} {self.show(data)}"
        except (Damaged, OverflowError, gdb.error):
            return f"{self.name} <{data:#x}>"


def register(library, objfile):
    printers = gdb.printing.RegexpCollectionPrettyPrinter(library)
    for type, show in CLASSES.items():
        namespace, name = type.split("::")
        if library == "Ostra" + namespace:
            printers.add_printer(
                name, f"^{type}$", lambda handle, name=name, show=show: HandlePrinter(name, show, handle)
            )
    gdb.printing.register_pretty_printer(objfile, printers, replace=True)


# gdb loads this file with each of the libraries, under its name; one that is sourced by hand is for both.
loaded_with = gdb.current_objfile()
for library in ("OstraParameters", "OstraUnits"):
    if loaded_with is None or os.path.basename(loaded_with.filename).startswith(f"lib{library}."):
        register(library, loaded_with)
