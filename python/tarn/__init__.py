"""The messages between a 3G access point and its access controller, for tests and scripts.

    >>> import tarn
    >>> data = tarn.encode({"message": "UeContextAccept", "Srnti": 1, "AcUeId": 7001})
    >>> tarn.decode(data).AcUeId
    7001

Decoding and encoding are libtarn's; this module loads it through ctypes. See docs/python.md.
"""

import ctypes
import json
import subprocess
import tempfile
import threading
from collections.abc import Mapping

from . import _library, _rows
from ._records import Refused, message_fields, unknown

__version__ = _rows.INTERFACE_VERSION
__all__ = ["CaptureLine", "Message", "Refused", "decode", "encode", "read_capture", *_rows.MESSAGES]


def _raise(explanation, offset_is_of_bytes):
    """Raises what an explanation of libtarn_info says, and frees it."""
    if not explanation:
        raise MemoryError
    try:
        found = explanation.contents
        if not found.faultCount:
            raise Refused("refused")
        fault = found.faults[0]
        raise Refused(
            fault.sentence.decode(),
            fault.path.decode(),
            fault.offset if offset_is_of_bytes else None,
            _library.reason_name(fault.reason).decode(),
        )
    finally:
        _library.free_explanation(explanation)


_CAPTURE_KEYS = frozenset(("packet", "time", "from", "to", "verdict"))


class Message(Mapping):
    """A message: its name, and its IEs by name, as the tool's JSON has them: numbers, byte strings as
    hex digits, an IpAddress as a dotted string, records and composites as mappings, lists as lists.
    """

    name = None
    __slots__ = ("_ies", "_bytes")

    def __new__(cls, *args, **ies):
        if cls.name is None:
            raise TypeError("make a message by its type, as tarn.UeContextAccept(Srnti=1, AcUeId=2)")
        self = super().__new__(cls)
        self._ies = ies
        self._bytes = None
        return self

    def __init__(self, **ies):
        self._bytes = _encode(self.name, ies)

    def __getitem__(self, ie):
        return self._ies[ie]

    def __iter__(self):
        return iter(self._ies)

    def __len__(self):
        return len(self._ies)

    def __getattr__(self, ie):
        ies = object.__getattribute__(self, "_ies")
        if ie not in ies:
            raise AttributeError(unknown(f"this {self.name} has no IE", ie, ies))
        return ies[ie]

    def __reduce__(self):
        return _from_json, (self.to_dict(),)

    def __bytes__(self):
        if self._bytes is None:
            self._bytes = _encode(self.name, self._ies)
        return self._bytes

    def __eq__(self, other):
        if not isinstance(other, Message):
            return NotImplemented
        return self.name == other.name and bytes(self) == bytes(other)

    def __hash__(self):
        return hash(bytes(self))

    def __repr__(self):
        return f"{self.name}({', '.join(f'{ie}={value!r}' for ie, value in self._ies.items())})"

    def to_dict(self):
        """What encode takes: {"message": name, IEs...}."""
        return {"message": self.name, **self._ies}


def _message_types():
    return {
        name: type(name, (Message,), {"name": name, "__slots__": (), "__module__": __name__})
        for name in _rows.MESSAGES
    }


_TYPES = _message_types()
globals().update(_TYPES)


class _Printer(threading.local):
    """Prints JSON. Making a callback costs more than all else, so each thread keeps one."""

    def __init__(self):
        self.pieces = []
        self.sink = _library.Sink(self.take)

    def take(self, context, text, size):
        self.pieces.append(ctypes.string_at(text, size))

    def json_of(self, data, judgement):
        self.pieces.clear()
        _library.print_bytes(data, len(data), judgement, _library.JSON_FORMAT, 0, self.sink, None)
        return b"".join(self.pieces).decode()


_printer = _Printer()
_parse = json.JSONDecoder().decode


def decode(data):
    """The message that the bytes hold; raises Refused, which says where and why they are none."""
    data = bytes(data)
    judgement = _library.judge(data, len(data))
    if judgement.verdict == _library.REFUSED:
        _raise(_library.explain_bytes(data, len(data)), True)
    message = _from_json(_parse(_printer.json_of(data, judgement)))
    if judgement.isPlain:
        message._bytes = data
    return message


def _from_json(ies):
    cls = _TYPES[ies.pop("message")]
    message = cls.__new__(cls)
    message._ies = ies
    return message


def encode(values):
    """The bytes of a Message, or of a mapping {"message": name, IEs...}; raises Refused. What the
    tool's JSON lines say of a capture beside the message is passed over."""
    if isinstance(values, Message):
        return bytes(values)
    ies = {ie: value for ie, value in values.items() if ie not in _CAPTURE_KEYS}
    name = ies.pop("message", None)
    if name not in _rows.MESSAGES:
        raise Refused(unknown("there is no message", name, _rows.MESSAGES))
    return _encode(name, ies)


def _encode(name, ies):
    identity, largest, _ = _rows.MESSAGES[name]
    fields = message_fields(name)
    record = bytearray(fields.size)
    fields.write(record, 0, ies, "")
    record = bytes(record)
    room = ctypes.create_string_buffer(largest)
    size = _library.build(identity, room, largest, record)
    if not size:
        _raise(_library.explain_record(identity, record, largest), False)
    return room.raw[:size] if largest < 512 else ctypes.string_at(room, size)


class CaptureLine:
    """One message of a capture: where it stood, what came of it, and the message if it decodes."""

    __slots__ = ("packet", "time", "source", "destination", "verdict", "message", "fault", "bytes")

    def __init__(self, line):
        self.packet = line.pop("packet")
        self.time = line.pop("time")
        self.source = line.pop("from")
        self.destination = line.pop("to")
        self.verdict = line.pop("verdict")
        self.fault = line.pop("fault", None)
        self.bytes = bytes.fromhex(line.pop("bytes", ""))
        decoded = self.verdict != "refused" and line.get("message") in _TYPES
        self.message = _from_json(line) if decoded else None

    def __repr__(self):
        what = self.message if self.message is not None else self.fault
        return f"<packet {self.packet}, {self.verdict}: {what!r}>"


def read_capture(path, tool="tarn"):
    """The messages of a capture, or of any file that `tarn decode` takes, one after the other."""
    command = [tool, "decode", "--json", "--", str(path)]
    with tempfile.TemporaryFile() as errors:
        with subprocess.Popen(command, stdout=subprocess.PIPE, stderr=errors) as process:
            for line in process.stdout:
                yield CaptureLine(json.loads(line))
        if process.returncode not in (0, 1):  # 1: some message was refused, which its line tells
            errors.seek(0)
            raise OSError(errors.read().decode(errors="replace").strip() or f"{tool} decode failed")
