"""capture_test.py PLUGIN TARN EXCHANGE SAMPLES

Holds Wireshark's plugin to `tarn decode`: both read the same captures, and must find the same
messages in the same packets, with the same IEs, verdicts and faults. Then gives mutated captures to
tshark, none of which may raise a Lua error."""

import json
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

import captures
from captures import LINK_ETHERNET, LINK_EXPORTED, LINK_USER0

PLUGIN, TARN, EXCHANGE, SAMPLES = sys.argv[1:5]
ON_PORT = ["-o", f"tarn.ports:{captures.AC_PORT}"]
IN_ORDER = ["-o", "tcp.reassemble_out_of_order:TRUE"]

# What the plugin adds to the IEs.
META = {"tarn.length", "tarn.message", "tarn.verdict", "tarn.messageid", "tarn.request_in",
        "tarn.response_in", "tarn.response_time"}


def tshark(path, *options):
    command = ["tshark", "-X", f"lua_script:{PLUGIN}", "-r", str(path), *options]
    result = subprocess.run(command, capture_output=True, check=False)
    if result.returncode != 0 or b"Lua" in result.stderr or b"Lua Error" in result.stdout:
        raise AssertionError(f"{' '.join(command)}: {result.stderr.decode()}\n" +
                             "\n".join(set(re.findall(r"Lua Error.*", result.stdout.decode()))))
    return result.stdout


def shown_fields(element, found):
    """The IEs that hold a value, in order, and the first finding."""
    for field in element.findall("field"):
        name, text = field.get("name"), field.get("show")
        if name == "tarn.finding":
            parts = [child.get("show") for child in field.findall("field")]
            found.setdefault("fault", (int(parts[-4]), parts[-3], parts[-2]))
        elif name.startswith("tarn.") and name not in META:
            if text:
                found["ies"].append(text.replace(":", "") if re.fullmatch(r"[\da-f:]+", text) else text)
            shown_fields(field, found)
    return found


def messages_of_tshark(path, options):
    """Of each message: packet, name, verdict, fault, values."""
    found = []
    for packet in xml.etree.ElementTree.fromstring(tshark(path, "-T", "pdml", *options)):
        number = int(packet.find("proto[@name='geninfo']/field[@name='num']").get("show"))
        for proto in packet.findall("proto[@name='tarn']"):
            shown = {f.get("name"): f.get("show") for f in proto.findall("field")}
            if "tarn.verdict" not in shown:
                continue  # bytes that are no message
            parts = shown_fields(proto, {"ies": []})
            isBad = shown["tarn.verdict"] != "valid"
            found.append((number, shown["tarn.message"] or None, shown["tarn.verdict"],
                          parts.get("fault") if isBad else None,
                          parts["ies"] if shown["tarn.verdict"] != "refused" else []))
    return found


def leaves(value):
    if isinstance(value, dict):
        return [leaf for part in value.values() for leaf in leaves(part)]
    if isinstance(value, list):
        return [leaf for part in value for leaf in leaves(part)]
    return [str(value)] if value != "" else []


def messages_of_tool(path):
    result = subprocess.run([TARN, "decode", "--json", "--readable", str(path)],
                            capture_output=True, check=False)
    found = []
    for line in result.stdout.decode().splitlines():
        given = json.loads(line)
        fault = given.get("fault")
        ies = {key: value for key, value in given.items() if key not in (
            "packet", "time", "from", "to", "verdict", "message", "fault", "notes", "bytes")}
        found.append((given["packet"], given["message"], given["verdict"],
                      fault and (fault["offset"], fault["path"] or "", fault["reason"]),
                      leaves(ies)))
    return found


def compare(name, path, *options):
    ours, theirs = messages_of_tshark(path, options), messages_of_tool(path)
    if name.endswith("lost"):  # the tool waits longer for what may yet come, so in other packets
        ours, theirs = [m[1:] for m in ours], [m[1:] for m in theirs]
    for mine, other in zip(ours, theirs):
        if mine != other:
            raise AssertionError(f"{name}:\n  tshark {mine}\n  tarn   {other}")
    if len(ours) != len(theirs) or not ours:
        raise AssertionError(f"{name}: tshark shows {len(ours)} messages, tarn {len(theirs)}")
    refused = sum("refused" in message for message in ours)
    print(f"{name}: {len(ours)} messages alike, {refused} of them refused")


def shuffled(packets, run):
    """The SYN, then each run of packets backwards."""
    mixed = packets[:1]
    for at in range(1, len(packets), run):
        mixed += packets[at:at + run][::-1]
    return mixed


def cases(samples):
    good = [m for m in samples if m[:6] == b"\0\x48\0\0\0\1"]
    stream = captures.framed(good)
    segments = captures.tcp_stream(stream, [90])
    apart = captures.tcp_stream(stream, [part for m in good for part in (4, len(m))])
    yield "user link type", LINK_USER0, samples, []
    yield "exported PDUs", LINK_EXPORTED, [captures.exported(m) for m in samples], []
    yield "UDP", LINK_ETHERNET, [captures.udp(m) for m in good], []
    yield "SCTP, three in a packet", LINK_ETHERNET, [
        captures.sctp(good[at:at + 3], at + 1) for at in range(0, len(good), 3)], []
    yield "TCP, many in a segment", LINK_ETHERNET, captures.tcp_stream(stream, [1460]), []
    yield "TCP, segments of all sizes", LINK_ETHERNET, captures.tcp_stream(
        stream, [1, 2, 3, 5, 8, 13, 300, 700]), ON_PORT
    yield "TCP, lengths sent apart", LINK_ETHERNET, apart, ON_PORT
    yield "TCP, out of order", LINK_ETHERNET, shuffled(segments, 3), ON_PORT + IN_ORDER
    yield "TCP, segments lost", LINK_ETHERNET, [
        segment for number, segment in enumerate(segments) if number % 20 != 10], ON_PORT


def capture_exchange(path):
    """Records the example's two ends on the loopback interface. Returns what they sent, or None
    where this machine lets nobody capture."""
    recorder = subprocess.Popen(["dumpcap", "-q", "-i", "lo", "-w", str(path)],
                                stderr=subprocess.PIPE)
    if not any(line.startswith(b"File:") for line in iter(recorder.stderr.readline, b"")):
        return None
    said = subprocess.run([EXCHANGE], capture_output=True, check=True).stdout.decode()
    subprocess.run(["sleep", "1"], check=True)  # for the last packets to be written
    recorder.send_signal(signal.SIGINT)
    recorder.wait()
    return re.findall(r"^ *\|[-<]-* (\w+) -*[->]\|", said, re.M)


def test_exchange(path):
    sent = capture_exchange(path)
    if sent is None:
        print("exchange: skipped, since capturing is not allowed here")
        return
    names = [message[1] for message in messages_of_tshark(path, [])]
    assert names == sent and len(sent) > 30, f"sent {sent}, shown {names}"
    compare("exchange on the loopback interface", path)
    pairs = tshark(path, "-2", "-Y", "tarn.response_in", "-T", "fields", "-e", "tarn.message")
    assert len(pairs.splitlines()) == 14, pairs
    print("exchange: 14 requests know their response")


def mutate(packet, from_byte, random_numbers):
    packet = bytearray(packet)
    for _ in range(random_numbers.randrange(1, 4)):
        at = random_numbers.randrange(min(from_byte, len(packet) - 1), len(packet))
        kind = random_numbers.randrange(4)
        if kind == 0:
            packet[at] = random_numbers.randrange(256)
        elif kind == 1:
            del packet[at:at + random_numbers.randrange(1, 20)]
        elif kind == 2:
            packet[at:at] = packet[at - 12:at]
        else:
            packet[at] = random_numbers.choice([0, 1, 2, 4, 255])
        if len(packet) < 2:
            break
    return bytes(packet)


def fuzz(folder, samples, rounds):
    random_numbers = random.Random(20250117)
    count = 0
    for name, link_type, packets, options in cases(samples):
        path = folder / "fuzz.pcap"
        header = 54 if link_type == LINK_ETHERNET else 0
        mutated = [mutate(p, header, random_numbers) for _ in range(rounds) for p in packets]
        captures.write_pcap(path, link_type, mutated, random_numbers.choice([100, 262144]))
        tshark(path, "-V", *options)
        count += len(mutated)
    print(f"fuzz: {count} mutated packets, no Lua error")


def main():
    samples = captures.samples(SAMPLES)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for title, link_type, packets, options in cases(samples):
            path = folder / "case.pcap"
            captures.write_pcap(path, link_type, packets)
            compare(title, path, *options)
        test_exchange(folder / "exchange.pcapng")
        fuzz(folder, samples, 3)


if __name__ == "__main__":
    main()
