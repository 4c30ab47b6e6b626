"""Writes values into the C records that Build takes, as the rows lay them out."""

import ipaddress
import struct
from difflib import get_close_matches

from . import _rows

_FORMATS = {1: "=B", 2: "=H", 4: "=I"}


class Refused(ValueError):
    """Bytes or values that do not make a message.

    offset: the byte where the message stopped; None where values were refused.
    path:   the IE, as RabList[1].RabParams.TransDelay; "" for the message as a whole.
    reason: the kind of reason, as TarnInfoReason names it.
    """

    def __init__(self, sentence, path="", offset=None, reason="Value"):
        self.sentence, self.path, self.offset, self.reason = sentence, path, offset, reason
        place = [f"byte {offset}"] if offset is not None else []
        place += [path] if path else []
        super().__init__(f"{', '.join(place)}: {sentence}" if place else sentence)


def unknown(what, name, known):
    """The sentence about a name that is not there, with the nearest that is."""
    near = get_close_matches(str(name), known, 1, 0.5)
    return f"{what} {name!r}" + (f"; did you mean {near[0]!r}?" if near else "")


def _range_words(least, greatest):
    return f"exactly {least}" if least == greatest else f"{least} to {greatest}"


def _aligned(offset, alignment):
    return -(-offset // alignment) * alignment


class _Number:
    def __init__(self, row):
        _, self.size, width, self.least, self.greatest = row
        if width < self.size:  # a code word: more than 16 bits would be cut off
            self.greatest = 0xFFFF
        self.alignment = self.size
        self.store = struct.Struct(_FORMATS[self.size]).pack_into

    def write(self, record, offset, value, path):
        if type(value) is not int:
            raise Refused(f"takes a number, not {type(value).__name__}", path)
        if not self.least <= value <= self.greatest:
            raise Refused(f"{value} is not in {_range_words(self.least, self.greatest)}", path)
        self.store(record, offset, value)


class _Bytes:
    alignment = 4

    def __init__(self, row):
        _, self.capacity, self.least, self.greatest = row
        self.size = _aligned(4 + self.capacity, 4)

    def write(self, record, offset, value, path):
        if isinstance(value, str):
            try:
                value = bytes.fromhex(value)
            except ValueError:
                raise Refused("takes bytes, or a string of hex digits", path) from None
        elif not isinstance(value, (bytes, bytearray, memoryview)):
            raise Refused(f"takes bytes or hex digits, not {type(value).__name__}", path)
        if not self.least <= len(value) <= self.greatest:
            words = _range_words(self.least, self.greatest)
            raise Refused(f"{len(value)} bytes, where {words} are allowed", path)
        struct.pack_into("=I", record, offset, len(value))
        record[offset + 4 : offset + 4 + len(value)] = value


class _List:
    """A list of values, counted in 32 bits, or of elements, counted in 16."""

    def __init__(self, item, count_format, least, greatest, is_address):
        self.item = type_of(item)
        self.store_count = struct.Struct(count_format).pack_into
        width = struct.calcsize(count_format)
        self.least, self.greatest, self.is_address = least, greatest, is_address
        self.alignment = max(width, self.item.alignment)
        self.first = _aligned(width, self.item.alignment)
        self.stride = self.item.size
        self.size = _aligned(self.first + self.stride * greatest, self.alignment)

    def write(self, record, offset, value, path):
        if self.is_address and isinstance(value, (str, ipaddress.IPv4Address)):
            try:
                value = list(ipaddress.IPv4Address(value).packed)
            except ValueError:
                raise Refused(f"{value!r} is no IPv4 address", path) from None
        if not isinstance(value, (list, tuple)):
            raise Refused(f"takes a list, not {type(value).__name__}", path)
        if not self.least <= len(value) <= self.greatest:
            words = _range_words(self.least, self.greatest)
            raise Refused(f"{len(value)} elements, where {words} are allowed", path)
        self.store_count(record, offset, len(value))
        place = offset + self.first
        for index, item in enumerate(value):
            self.item.write(record, place + index * self.stride, item, f"{path}[{index}]")


class _Fields:
    """Members one after the other: a record's, or a mask's and those of a sequence or message."""

    def __init__(self, slots, head):
        self.fields = {}
        self.mask = head - 1
        self.mandatory = []
        self.alignment = 1
        offset = head
        for slot in slots:
            name, kind, bit = slot[:3]
            codec = type_of(kind)
            offset = _aligned(offset, codec.alignment)
            self.fields[name] = (codec, offset, bit, len(slot) > 3)
            self.alignment = max(self.alignment, codec.alignment)
            offset += codec.size
            if not bit:
                self.mandatory.append(name)
        self.size = _aligned(offset, self.alignment)

    def write(self, record, offset, value, path):
        if not hasattr(value, "keys"):
            raise Refused(f"takes a mapping of its IEs, not {type(value).__name__}", path)
        fields = self.fields
        mask = 0
        for name in value.keys():
            if name not in fields:
                raise Refused(unknown("there is no IE", name, fields), path)
            codec, place, bit, repeats = fields[name]
            child = f"{path}.{name}" if path else name
            item = value[name]
            if repeats:
                item = _only(item, child)
                if item is None:
                    continue
            codec.write(record, offset + place, item, child)
            mask |= bit
        for name in self.mandatory:
            if name not in value:
                raise Refused("missing", f"{path}.{name}" if path else name)
        if self.mask >= 0:
            record[offset + self.mask] = mask


def _only(value, path):
    """The one IE that a message carries of those that may repeat in an object; None for none."""
    if hasattr(value, "keys"):
        return value
    if not isinstance(value, (list, tuple)):
        raise Refused(f"takes a list of mappings, not {type(value).__name__}", path)
    if len(value) > 1:
        raise Refused(f"{len(value)} of them, where a packed message carries one at most", path)
    return value[0] if value else None


_types = {}


def type_of(name):
    """What writes a type's values, made when it is first needed."""
    if name not in _types:
        _types[name] = _make(name)
    return _types[name]


def _make(name):
    if name in _rows.NUMBERS:
        return _Number(_rows.NUMBERS[name])
    if name in _rows.BYTES:
        return _Bytes(_rows.BYTES[name])
    if name in _rows.RECORDS:
        return _Fields([(member, member, 0) for member in _rows.RECORDS[name][1]], 0)
    if name in _rows.LISTS:
        _, item, _, least, greatest = _rows.LISTS[name]
        return _List(item, "=I", least, greatest, name == "IpAddress")
    if name in _rows.SEQUENCES:
        return _Fields(_rows.SEQUENCES[name][1], 1)
    _, element, least, greatest = _rows.COMPOSITE_LISTS[name]
    return _List(element, "=H", least, greatest, False)


_messages = {}


def message_fields(name):
    """The members of a message's record, behind its id and its mask."""
    if name not in _messages:
        _messages[name] = _Fields(_rows.MESSAGES[name][2], 2)
    return _messages[name]
