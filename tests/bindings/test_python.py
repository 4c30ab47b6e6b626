"""The Python module against the tool, and what it refuses."""

import ctypes
import json
import os
import pathlib
import subprocess
import sys

import pytest

import tarn
from tarn import _library, _records, _rows

ROOT = pathlib.Path(__file__).parents[2]
BUILD = ROOT / "build" / "release"
TOOL = os.environ.get("TARN_TOOL", str(BUILD / "tools/tarn/tarn"))
SAMPLES = sorted((ROOT / "examples/messages").glob("*.hex"))


def lines_of(path):
    ran = subprocess.run([TOOL, "decode", "--json", path], capture_output=True, check=True)
    return [json.loads(line) for line in ran.stdout.splitlines()]


@pytest.mark.parametrize("path", SAMPLES, ids=lambda path: path.stem)
def test_samples_are_what_the_tool_says(path):
    for line in lines_of(path):
        data = tarn.encode(line)
        message = tarn.decode(data)
        values = {key: line[key] for key in line if key not in tarn._CAPTURE_KEYS}
        assert message.to_dict() == values
        assert bytes(message) == data == bytes(getattr(tarn, message.name)(**message))


class Slot(ctypes.Structure):
    _fields_ = [("name", ctypes.c_char_p), ("type", ctypes.c_void_p), ("presence", ctypes.c_uint32),
                ("condition", ctypes.c_void_p), ("presenceBit", ctypes.c_uint32), ("offset", ctypes.c_uint32)]


class Facts(ctypes.Structure):
    _fields_ = [("name", ctypes.c_char_p), ("term", ctypes.c_char_p), ("id", ctypes.c_uint32),
                ("tokens", ctypes.c_uint32 * 3), ("recordSize", ctypes.c_uint32), ("largest", ctypes.c_uint32),
                ("slots", ctypes.POINTER(Slot)), ("slotCount", ctypes.c_uint32)]


@pytest.mark.parametrize("name", _rows.MESSAGES)
def test_records_are_laid_out_as_in_c(name):
    by_name = _library.info.tarnInfoMessageByName
    by_name.restype, by_name.argtypes = ctypes.POINTER(Facts), [ctypes.c_char_p]
    facts = by_name(name.encode()).contents
    fields = _records.message_fields(name)
    assert (fields.size, _rows.MESSAGES[name][1]) == (facts.recordSize, facts.largest)
    for slot in facts.slots[1 : facts.slotCount]:
        _, offset, bit, _ = fields.fields[slot.name.decode()]
        assert (offset, bit) == (slot.offset, slot.presenceBit)


ACCEPT = {"message": "UeContextAccept", "Srnti": 1, "AcUeId": 7001}
RELOCATION = {"message": "RelocationRequired", "Srnti": 1, "AcUeId": 2, "RelocationRequiredCause": 2,
              "RelocationType": 1}


@pytest.mark.parametrize("values, path, words", [
    ({"message": "UeContextAcept"}, "", "did you mean 'UeContextAccept'"),
    ({**ACCEPT, "AcUeid": 1}, "", "did you mean 'AcUeId'"),
    ({"message": "UeContextAccept", "Srnti": 1}, "AcUeId", "missing"),
    ({**ACCEPT, "AcUeId": 1 << 32}, "AcUeId", "0 to 4294967295"),
    ({**ACCEPT, "AcUeId": True}, "AcUeId", "bool"),
    ({**ACCEPT, "AcUeId": None}, "AcUeId", "NoneType"),
    ({"message": "Reset", "CnDomainId": 65536}, "CnDomainId", "0 to 65535"),
    ({"message": "Reset", "CnDomainId": -1}, "CnDomainId", "-1"),
    ({**ACCEPT, "message": "UeContextRelease", "ReleaseCause": 1, "RabDataInfoList": []},
     "RabDataInfoList", "1 to 3"),
    ({**ACCEPT, "message": "UeContextRelease", "ReleaseCause": 1,
      "RabDataInfoList": [{"RabId": 5, "SuccTransferAtPsiw": "x"}]},
     "RabDataInfoList[0].SuccTransferAtPsiw", "number"),
    ({**ACCEPT, "message": "AccessControlResponse", "Imsi": "0g", "LacMatch": 1}, "Imsi", "hex"),
    ({**ACCEPT, "message": "AccessControlResponse", "Imsi": b"1", "LacMatch": 1}, "Imsi", "exactly 16"),
    (RELOCATION, "ModifiedSrncContainer", "required where RelocationType is 1"),
])
def test_refused_values_say_what_would_be_right(values, path, words):
    with pytest.raises(tarn.Refused) as refused:
        tarn.encode(values)
    assert refused.value.path == path
    assert words in str(refused.value)


def test_refused_bytes_say_where():
    data = tarn.encode(ACCEPT)
    for length in range(len(data)):
        with pytest.raises(tarn.Refused) as refused:
            tarn.decode(data[:length])
        assert refused.value.offset <= length
        assert refused.value.reason != "unknown"
    assert _library.live_blocks() == 0


def test_bytes_behind_a_message_are_not_part_of_it():
    data = tarn.encode(ACCEPT)
    message = tarn.decode(data + b"more")
    assert bytes(message) == data and message == tarn.decode(data) and hash(message) == hash(data)


def test_captures_come_from_the_tool(tmp_path):
    lines = tmp_path / "lines.hex"
    lines.write_text(f"{tarn.encode(ACCEPT).hex()}\n0048000000010200\n")
    good, bad = tarn.read_capture(lines, TOOL)
    assert good.message == tarn.UeContextAccept(Srnti=1, AcUeId=7001) and good.verdict == "valid"
    assert bad.verdict == "refused" and bad.message is None and bad.fault["offset"] == 7
    with pytest.raises(OSError, match="no-such-file"):
        list(tarn.read_capture(tmp_path / "no-such-file", TOOL))


def test_a_missing_library_is_named():
    code = "import ctypes\ndef no(name, mode): raise OSError('gone')\nctypes.CDLL = no\nimport tarn"
    ran = subprocess.run([sys.executable, "-c", code], capture_output=True, text=True)
    assert "libtarn-host0" in ran.stderr and "TARN_LIBRARY_PATH" in ran.stderr


def test_the_fake_controller_serves_the_example_access_point():
    script = ROOT / "python/examples"
    controller = subprocess.Popen([sys.executable, script / "fake_ac.py", script / "exchange.ndjson"],
                                  stdout=subprocess.PIPE)
    point = subprocess.run([BUILD / "examples/exchange_ap"], stdin=controller.stdout,
                           capture_output=True, text=True, timeout=30)
    controller.stdout.close()
    assert (point.returncode, controller.wait(timeout=30)) == (0, 0), point.stderr
    assert point.stdout == (ROOT / "tests/examples/exchange.txt").read_text()
