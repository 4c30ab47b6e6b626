"""A fake access controller: plays the AC's part of a recorded conversation to whoever connects.

    tarn decode --json exchange.pcapng > exchange.ndjson     # or the recording that lies here
    python3 fake_ac.py exchange.ndjson                       # prints the port that it listens on
"""

import json
import socket
import struct
import sys
from io import BufferedRWPair

import tarn


def send(stream: BufferedRWPair, data: bytes) -> None:
    stream.write(struct.pack(">I", len(data)) + data)  # each message with its length in front
    stream.flush()


def receive(stream: BufferedRWPair) -> tarn.Message:
    (size,) = struct.unpack(">I", stream.read(4))
    return tarn.decode(stream.read(size))


def serve(stream: BufferedRWPair, path: str) -> None:
    with open(path) as file:
        lines = [json.loads(line) for line in file]
    controller = lines[0]["from"]  # it speaks first: it pages the UE
    for line in lines:
        if line["from"] == controller:
            send(stream, tarn.encode(line))
        elif (message := receive(stream)).name != line["message"]:
            sys.exit(f"a {line['message']} was to come, and this came: {message}")


if __name__ == "__main__":
    with socket.create_server(("127.0.0.1", 0)) as listener:
        print(listener.getsockname()[1], flush=True)
        peer, _ = listener.accept()
        with peer, peer.makefile("rwb") as stream:
            serve(stream, sys.argv[1])
