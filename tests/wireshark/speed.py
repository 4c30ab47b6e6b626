"""speed.py PLUGIN SAMPLES: how many messages tshark shows in a second, with the plugin and without."""

import pathlib
import resource
import subprocess
import sys
import tempfile

import captures

PLUGIN, SAMPLES = sys.argv[1:3]
COUNT = 100000


def seconds(path, *options):
    """Processor time, which other work on the machine disturbs less."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run(["tshark", "-r", str(path), *options], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def main():
    samples = [m for m in captures.samples(SAMPLES) if m[:6] == b"\0\x48\0\0\0\1"]
    packets = [captures.udp(samples[number % len(samples)]) for number in range(COUNT)]
    plugin = ["-X", f"lua_script:{PLUGIN}"]
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "speed.pcap"
        captures.write_pcap(path, captures.LINK_ETHERNET, packets)
        print(f"{COUNT} packets of UDP, one message each       packets a second")
        for title, options in [
                ("list, without the plugin", []),
                ("list", plugin),
                ("faults: -q -z expert", plugin + ["-q", "-z", "expert"]),
                ("filter: -Y tarn.srnti==0x1e240", plugin + ["-Y", "tarn.srnti==0x1e240"]),
                ("details, without the plugin: -V", ["-V"]),
                ("details: -V", plugin + ["-V"])]:
            print(f"  {title:42} {COUNT / seconds(path, *options):10.0f}")


if __name__ == "__main__":
    main()
