// The command line.
#include <CLI/CLI.hpp>

#include <cstdio>
#include <exception>
#include <iostream>

#include "tarn/commands.h"

namespace {

constexpr const char *decodeHelp =
    R"(Prints each message as a tree: the byte at which an IE begins, its name, tag and value, and whether
the message is valid; or says at which byte and IE the decoding stopped, and why.

Hex text: one message a line; indented lines continue the message before them, a blank line ends it.
A # begins a comment. Blanks and any of , ; : - . _ | may stand between bytes, and 0x before them.
Raw bytes: one message a file. Input that holds a zero byte is taken as raw, any other as hex text,
unless --raw or --hex says otherwise.)";

constexpr const char *encodeHelp =
    R"(Builds messages from JSON: objects one after the other, or arrays of them, in the form that
decode --json writes. Each hex line is one message, with a blank between its IEs.

  {"message": "Reset", "CnDomainId": 1}

Numbers are JSON numbers or strings like "0x1f"; byte strings are strings of hex digits; an
IpAddress is a string like "10.0.0.1"; records and sequence composites are objects; lists are
arrays. The MessageId follows from the message's name. `describe` tells what a message holds.)";

constexpr const char *footer = R"(

Exit status:
  0  every message is decodable and valid, or was encoded
  1  a message is not decodable or not valid, or breaks a rule of the protocol
  2  the command line is wrong, or input or output fails)";

void add_decode(CLI::App &app, tool::DecodeOptions *options, bool *raw, bool *hex) {
    CLI::App *decode = app.add_subcommand("decode", "Bytes to readable trees, or to JSON");
    decode->add_option("FILE", options->files, "What to read; standard input for - or none");
    CLI::Option *rawFlag = decode->add_flag("--raw", *raw, "Take the input as raw bytes");
    decode->add_flag("--hex", *hex, "Take the input as hex text")->excludes(rawFlag);
    CLI::Option *json = decode->add_flag(
        "--json", options->json, "Write JSON, one object a line; what is wrong goes to stderr");
    decode->add_flag("--pretty", options->pretty, "Write the JSON indented")->needs(json);
    decode->footer(std::string(decodeHelp) + footer);
}

void add_encode(CLI::App &app, tool::EncodeOptions *options, bool *hex) {
    CLI::App *encode = app.add_subcommand("encode", "JSON to bytes");
    encode->add_option("FILE", options->files, "What to read; standard input for - or none");
    CLI::Option *raw =
        encode->add_flag("--raw", options->raw, "Write the raw bytes of the one message given");
    encode->add_flag("--hex", *hex, "Write hex text (the default)")->excludes(raw);
    encode->add_option("--raw-output", options->rawOutput,
                       "Write the raw bytes of the one message given to this file as well");
    encode->footer(std::string(encodeHelp) + footer);
}

int run(int argc, char **argv) {
    CLI::App app{"Decodes, encodes and describes the messages between a 3G access point and its "
                 "access controller.",
                 "tarn"};
    app.set_version_flag(
        "--version", [] { return std::string(TarnGetInterfaceVersion()); },
        "Print the version of the interface and exit");
    app.require_subcommand(1);
    app.footer(std::string("Each subcommand has a --help of its own.") + footer);
    bool raw = false;
    bool hex = false;
    tool::DecodeOptions decode;
    tool::EncodeOptions encode;
    std::string name;
    add_decode(app, &decode, &raw, &hex);
    add_encode(app, &encode, &hex);
    app.add_subcommand("describe", "What the protocol contains, or one message or IE")
        ->add_option("NAME", name, "A message's name or id, an IE's name, or tag:N");
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError &error) {
        // The parser has exit statuses of its own for each kind of mistake.
        return app.exit(error) == 0 ? tool::exitOk : tool::exitUnusable;
    }
    decode.format = raw ? tool::Format::raw : hex ? tool::Format::hex : tool::Format::detect;
    const tool::Streams streams{std::cout, std::cerr};
    for (auto *files : {&decode.files, &encode.files})
        if (files->empty())
            files->emplace_back("-");
    if (app.got_subcommand("decode"))
        return tool::decode(decode, streams);
    if (app.got_subcommand("encode"))
        return tool::encode(encode, streams);
    return tool::describe(name, streams);
}

} // namespace

int main(int argc, char **argv) {
    try {
        std::ios::sync_with_stdio(false);
        const int status = run(argc, argv);
        if (std::cout.flush())
            return status;
        std::fputs("tarn: cannot write the output\n", stderr);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "tarn: %s\n", error.what());
    }
    return tool::exitUnusable;
}
