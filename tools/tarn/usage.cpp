#include "tarn/usage.h"

#define EXIT_STATUS                                                                                \
    "\n\n"                                                                                         \
    "Exit status:\n"                                                                               \
    "  0  all is well\n"                                                                           \
    "  1  a message is refused or invalid, cannot be encoded, or differs\n"                        \
    "  2  the command line is wrong, some input cannot be read, or the output fails"

namespace tool {

const char *const toolFooter = R"(`tarn help COMMAND` tells more, with examples.

  tarn decode capture.pcapng               every message as a tree
  tarn decode --summary --errors *.pcap    a line for each that is refused or invalid
  tail -f log | tarn decode --json         a line of JSON for each, as they come
  tarn describe RabParams                  what it holds, in which order, under which conditions)" EXIT_STATUS;

const char *const decodeFooter =
    R"(Input, told apart by its first bytes, compressed by gzip or not:
  captures    pcap and pcapng. Messages are found by their first bytes in UDP, SCTP and TCP (there
              behind a length of 4 bytes), over IPv4 and IPv6, Ethernet, VLAN, Linux cooked, raw IP
              and loopback; exported PDUs named tarn and the user link types 147 to 162 hold
              messages. --port and --link take what is on other ports and links for messages.
  streams     messages one after the other, each behind its length in 4 bytes
  raw bytes   one message a file: input that holds a zero byte and is none of these
  text        hex digits, one message a line, continued by indented lines; any of , ; : - . _ | and
              0x may stand between bytes, and # begins a comment. Dumps by xxd, hexdump -C and
              od -t x1; strings with escapes like \x00, and hex digits in quotes.

What --where asks:
  Srnti == 0x1e240 && RabList.RabId == 5       an IE's value; names may be left out in front and in
                                               between, and one of several values suffices
  Imsi == "0010101*" || !NasMsg                text with * and ?; whether there is such an IE
  verdict, reason, message, direction (up, down), from, to, packet, size    of the message itself
  == != < <= > >=   && || ! ( )

--only and --not take terms with commas between, of which one is enough: names of messages with *
and ?; up (AP to AC) or down; valid, invalid or refused; comparisons, as Srnti=0x1e240.

Examples:
  tarn decode trace.pcapng.gz
  tarn decode --json --only 'Rab*,Srnti=0x1e240' trace.pcap
  tarn decode --fields time,Srnti,AcUeId,RabList --not down trace.pcap
  tarn decode --summary --where 'size > 1000 && from == 10.0.0.1' trace.pcap
  tarn decode --errors --pcapng bad.pcapng trace.pcap       for Wireshark
  xxd message.bin | tarn decode --hex)" EXIT_STATUS;

const char *const statsFooter = R"(Examples:
  tarn stats trace.pcapng
  tarn stats --errors --per-second *.pcap)" EXIT_STATUS;

const char *const diffFooter =
    R"(The first message of one is compared with the first of the other, and so on. Both are kept in
memory.

Examples:
  tarn diff before.hex after.hex
  tarn diff <(tarn encode a.json) sent.bin)" EXIT_STATUS;

const char *const encodeFooter =
    R"(Builds messages from JSON: objects one after the other, or arrays of them, in the form that
decode --json writes. Each hex line is one message, with a blank between its IEs.

  {"message": "Reset", "CnDomainId": 1}

Numbers are JSON numbers or strings like "0x1f"; byte strings are strings of hex digits; an
IpAddress is a string like "10.0.0.1"; records and sequence composites are objects; lists are
arrays. The MessageId follows from the message's name. packet, time, from, to, verdict and fault,
which decode writes, are passed over. `describe` tells what a message holds.

--force writes what can be said in bytes even if no receiver takes it: values out of range, IEs
missing, twice, in the order of the JSON, or from other messages, and the bytes of refused ones.

Examples:
  tarn decode --json good.hex | tarn encode
  tarn decode --json good.hex | sed 's/"RabId":5/"RabId":300/' | tarn encode --force)" EXIT_STATUS;

const char *const describeFooter = R"(Examples:
  tarn describe                  all messages and IEs
  tarn describe RabParams        an IE by name; 'Rab*' for several
  tarn describe 4 tag:0x1a       a message by its id, an IE by its tag
  tarn describe 0x7A0D00B2       a debug token
  tarn describe --json           the whole protocol as one document
  tarn describe --schema duckdb  the columns of the lines that decode --json writes)" EXIT_STATUS;

} // namespace tool
