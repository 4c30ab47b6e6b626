"""Captures made by hand: messages in each kind of packet that can carry them."""

import pathlib
import struct

LINK_ETHERNET, LINK_USER0, LINK_EXPORTED = 1, 147, 252
AP, AC = bytes([192, 0, 2, 1]), bytes([192, 0, 2, 2])
AP_PORT, AC_PORT = 40000, 40001


def samples(folder):
    """The bytes of every sample: a line that is not indented begins a message."""
    messages = []
    for path in sorted(pathlib.Path(folder).rglob("*.hex")):
        is_open = False
        for line in path.read_text().splitlines():
            digits = line.split("#")[0].strip()
            if digits and not (is_open and line.startswith(" ")):
                messages.append(b"")
            if digits:
                messages[-1] += bytes.fromhex(digits)
            is_open = bool(digits) or (is_open and bool(line.strip()))
    return messages


def write_pcap(path, link_type, packets, snap_length=262144):
    with open(path, "wb") as file:
        file.write(struct.pack("<IHHiIII", 0xA1B2C3D4, 2, 4, 0, 0, snap_length, link_type))
        for number, packet in enumerate(packets):
            held = packet[:snap_length]
            file.write(struct.pack("<IIII", 1700000000 + number // 1000, number % 1000 * 1000,
                                   len(held), len(packet)) + held)


def checksum(data):
    total = sum(struct.unpack(f">{len(data) // 2}H", data))
    while total > 0xFFFF:
        total = (total & 0xFFFF) + (total >> 16)
    return ~total & 0xFFFF


def ip(protocol, payload, to_ac=True):
    ends = AP + AC if to_ac else AC + AP
    header = struct.pack(">BBHHHBBH", 0x45, 0, 20 + len(payload), 0, 0, 64, protocol, 0) + ends
    header = header[:10] + struct.pack(">H", checksum(header)) + header[12:]
    return b"\2\0\0\0\0\1\2\0\0\0\0\2\x08\0" + header + payload


def ports(to_ac=True):
    return struct.pack(">HH", *((AP_PORT, AC_PORT) if to_ac else (AC_PORT, AP_PORT)))


def udp(message, to_ac=True):
    return ip(17, ports(to_ac) + struct.pack(">HH", 8 + len(message), 0) + message, to_ac)


def sctp(messages, first_tsn=1):
    chunks = b""
    for number, message in enumerate(messages):
        chunks += struct.pack(">BBHIHHI", 0, 3, 16 + len(message), first_tsn + number, 0,
                              number, 0) + message + b"\0" * (-len(message) % 4)
    return ip(132, ports() + struct.pack(">II", 1, 0) + chunks)


def tcp(sequence, payload, flags=0x18):
    return ip(6, ports() + struct.pack(">IIBBHHH", sequence & 0xFFFFFFFF, 1, 0x50, flags, 65535,
                                       0, 0) + payload)


def tcp_stream(stream, sizes, start=1000):
    """The bytes as segments of the given sizes, over and over, behind a SYN."""
    packets, at, number = [tcp(start - 1, b"", 0x02)], 0, 0
    while at < len(stream):
        size = sizes[number % len(sizes)]
        packets.append(tcp(start + at, stream[at:at + size]))
        at, number = at + size, number + 1
    return packets


def framed(messages):
    return b"".join(struct.pack(">I", len(message)) + message for message in messages)


def exported(message, name=b"tarn"):
    return struct.pack(">HH", 12, len(name)) + name + bytes(4) + message
