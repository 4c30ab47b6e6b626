// The command line.
#include <CLI/CLI.hpp>

#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>

#include "tarn/commands.h"
#include "tarn/near_names.h"
#include "tarn/output.h"
#include "tarn/terminal.h"
#include "tarn/usage.h"
#include "tarn_info.h"

namespace {

using tool::Form;

const std::map<std::string, Form> forms = {{"auto", Form::detect},
                                           {"hex", Form::hex},
                                           {"raw", Form::raw},
                                           {"framed", Form::framed},
                                           {"capture", Form::capture}};

// All that the command line can say.
struct CommandLine {
    tool::DecodeOptions decode;
    tool::StatsOptions stats;
    tool::EncodeOptions encode;
    std::vector<std::string> diffFiles;
    tool::InputOptions diffInput;
    std::vector<std::string> names;
    bool describesAsJson = false;
    std::string schema;
    bool raw = false;
    bool readable = false;
    bool redact = false;
    std::string color = "auto";
    std::string helpOn;
};

void add_input(CLI::App *command, tool::InputOptions *input) {
    command
        ->add_option("--from", input->form,
                     "What the input is: auto, hex (all text), raw, framed or capture")
        ->transform(CLI::CheckedTransformer(forms, CLI::ignore_case).description(""))
        ->type_name("FORM");
    command->add_option("--port", input->capture.ports, "Take what is on this port for messages")
        ->type_name("N")
        ->allow_extra_args(false);
    command
        ->add_option("--link", input->capture.links,
                     "Take the packets of this link type for bare messages")
        ->type_name("N")
        ->allow_extra_args(false);
}

void add_filter(CLI::App *command, tool::FilterOptions *filter) {
    command->add_option("--only", filter->only, "Only messages of which one of these holds")
        ->type_name("TERMS")
        ->allow_extra_args(false);
    command->add_option("--not", filter->butNot, "No messages of which one of these holds")
        ->type_name("TERMS")
        ->allow_extra_args(false);
    command->add_option("--where", filter->where, "Only messages for which this holds")
        ->type_name("EXPRESSION");
    command->add_flag("--errors", filter->errors, "Only messages that are refused or invalid");
}

void add_files(CLI::App *command, std::vector<std::string> *files) {
    command->add_option("FILE", *files, "What to read; standard input for - or none")
        ->type_name("");
}

void add_decode(CLI::App &app, CommandLine *line) {
    tool::DecodeOptions *options = &line->decode;
    CLI::App *command = app.add_subcommand("decode", "Prints messages: as trees, lines or JSON");
    add_files(command, &options->files);
    const auto output = [&](const char *name, tool::Output value, const char *what) {
        return command->add_flag_function(
            name, [options, value](std::int64_t) { options->output = value; }, what);
    };
    CLI::Option *json = output("--json", tool::Output::json, "A line of JSON for each");
    command->add_flag("--pretty", options->pretty, "JSON on many lines")->needs(json);
    CLI::Option *summary = output("--summary", tool::Output::summary,
                                  "A line for each: time, ends, message, UE, verdict");
    CLI::Option *hex = output("--hex", tool::Output::hex, "The bytes beside what they are");
    CLI::Option *fields = command->add_option_function<std::string>(
        "--fields",
        [options](const std::string &names) {
            options->fields = names;
            options->output = tool::Output::fields;
        },
        "The values of these, with tabs between: IEs by name or path, packet, time, from, to, "
        "verdict, message, size");
    fields->type_name("NAMES");
    CLI::Option *const outputs[] = {json, summary, hex, fields};
    for (CLI::Option *one : outputs)
        for (CLI::Option *other : outputs)
            if (one != other)
                one->excludes(other);
    CLI::Option *pcapng = command->add_option(
        "--pcapng", options->pcapng, "Also write the messages to this capture, as exported PDUs");
    pcapng->type_name("FILE");
    command->add_flag("--readable", line->readable,
                      "JSON: digits of identities and the like instead of hex");
    command
        ->add_flag("--redact", line->redact,
                   "Black out keys, identities and what is passed through: tree, JSON, summary")
        ->excludes(hex)
        ->excludes(fields)
        ->excludes(pcapng);
    add_filter(command, &options->filter);
    add_input(command, &options->input);
    command->add_flag("--raw", line->raw, "The same as --from raw");
    command->add_option("--color", line->color, "auto, always or never")
        ->check(CLI::IsMember({"auto", "always", "never"}).description(""))
        ->type_name("WHEN");
    command->footer(tool::decodeFooter);
}

void add_stats(CLI::App &app, tool::StatsOptions *options) {
    CLI::App *command =
        app.add_subcommand("stats", "Counts messages: by type, verdict, reason, UE, size, time");
    add_files(command, &options->files);
    add_filter(command, &options->filter);
    add_input(command, &options->input);
    command->add_flag("--per-second", options->perSecond, "Also the count of each second");
    command->footer(tool::statsFooter);
}

void add_diff(CLI::App &app, CommandLine *line) {
    CLI::App *command = app.add_subcommand("diff", "Tells the messages of two files apart, by IE");
    command->add_option("FILES", line->diffFiles, "Two files; - for standard input")
        ->type_name("")
        ->required()
        ->expected(2);
    add_input(command, &line->diffInput);
    command->footer(tool::diffFooter);
}

void add_encode(CLI::App &app, tool::EncodeOptions *options) {
    CLI::App *command = app.add_subcommand("encode", "JSON to bytes");
    add_files(command, &options->files);
    command->add_flag("--raw", options->raw, "Write the raw bytes of the one message given");
    command
        ->add_option("--raw-output", options->rawOutput,
                     "Write the raw bytes of the one message given to this file as well")
        ->type_name("FILE");
    command->add_flag("--force", options->force,
                      "Write what no receiver would take, as far as it can be said");
    command->footer(tool::encodeFooter);
}

void add_describe(CLI::App &app, CommandLine *line) {
    CLI::App *command =
        app.add_subcommand("describe", "What the protocol contains, or messages, IEs and tokens");
    command
        ->add_option("NAME", line->names,
                     "A message's name or id, an IE's name, tag:N, a debug token, or a pattern")
        ->type_name("");
    command->add_flag("--json", line->describesAsJson, "As JSON");
    command
        ->add_option("--schema", line->schema,
                     "The columns of decode's JSON lines, for duckdb or spark")
        ->check(CLI::IsMember({"duckdb", "spark"}).description(""))
        ->type_name("ENGINE");
    command->footer(tool::describeFooter);
}

std::string version() {
    return std::string("tarn ") + TARN_TOOL_VERSION + "\ninterface " + TarnGetInterfaceVersion() +
           "\n" + TARN_TOOL_SONAME;
}

// ---- Mistakes ----------------------------------------------------------------------------------

// The nearest name that there is to one that there is not.
std::string nearest(const CLI::App &app, const std::string &wrong) {
    const bool isOption = wrong.starts_with("-");
    std::vector<std::string> names;
    for (const CLI::App *command : app.get_subcommands({}))
        names.push_back(command->get_name());
    const auto used = app.get_subcommands();
    if (isOption) {
        names.clear();
        for (const CLI::Option *option : (used.empty() ? &app : used.front())->get_options())
            for (const std::string &name : option->get_lnames())
                names.push_back("--" + name);
    }
    return tool::suggestion(wrong.substr(0, wrong.find('=')), {names.begin(), names.end()});
}

int refuse(const CLI::App &app, const std::string &what) {
    const auto used = app.get_subcommands();
    std::fprintf(stderr, "tarn: %s\nSee tarn help%s.\n", what.c_str(),
                 used.empty() ? "" : (" " + used.front()->get_name()).c_str());
    return tool::exitUnusable;
}

int refuse_arguments(const CLI::App &app, const CLI::ParseError &error, int argc, char **argv) {
    const auto used = app.get_subcommands();
    std::vector<std::string> left = app.remaining(true);
    if (left.empty() && used.empty() && argc > 1)
        left.push_back(argv[1]);
    if (left.empty())
        return refuse(app, tool::printable(error.what()));
    const std::string &wrong = left.front();
    const char *kind = wrong.starts_with("-") ? "option" : used.empty() ? "command" : "argument";
    return refuse(app, std::string("no ") + kind + " '" + tool::printable(wrong) + "'" +
                           nearest(app, wrong));
}

int help(const CLI::App &app, const std::string &command) {
    if (command.empty()) {
        std::cout << app.help();
        return tool::exitOk;
    }
    const auto commands = app.get_subcommands({});
    const auto found = std::find_if(commands.begin(), commands.end(), [&](const CLI::App *each) {
        return each->get_name() == command;
    });
    if (found == commands.end())
        return refuse(app, "no command '" + tool::printable(command) + "'" + nearest(app, command));
    std::cout << (*found)->help(app.get_name());
    return tool::exitOk;
}

// ---- Running -----------------------------------------------------------------------------------

void complete(CommandLine *line) {
    if (line->raw)
        line->decode.input.form = Form::raw;
    if (line->readable)
        line->decode.switches |= TarnInfoReadably;
    if (line->redact)
        line->decode.switches |= TarnInfoRedact | TarnInfoRedactPayloads;
    line->decode.colours =
        line->color == "auto" ? tool::wants_colours(STDOUT_FILENO) : line->color == "always";
    // A progress line would run through what is printed to the same terminal.
    line->decode.progress = line->stats.progress = isatty(STDOUT_FILENO) == 0;
    for (auto *files : {&line->decode.files, &line->stats.files, &line->encode.files})
        if (files->empty())
            files->emplace_back("-");
}

int dispatch(const CLI::App &app, const CommandLine &line) {
    const tool::Streams streams{std::cout, std::cerr};
    if (app.got_subcommand("decode"))
        return tool::decode(line.decode, streams);
    if (app.got_subcommand("stats"))
        return tool::stats(line.stats, streams);
    if (app.got_subcommand("diff"))
        return tool::diff(line.diffFiles, line.diffInput, streams);
    if (app.got_subcommand("encode"))
        return tool::encode(line.encode, streams);
    if (app.got_subcommand("help"))
        return help(app, line.helpOn);
    if (!line.schema.empty())
        return tool::describe_schema(line.schema, streams);
    return tool::describe(line.names, line.describesAsJson, streams);
}

int run(int argc, char **argv) {
    CLI::App app{"Decodes, encodes and describes the messages between a 3G access point and its "
                 "access controller.",
                 "tarn"};
    CommandLine line;
    app.set_version_flag("--version", version, "Print the versions and exit");
    app.require_subcommand(1);
    app.footer(tool::toolFooter);
    add_decode(app, &line);
    add_stats(app, &line.stats);
    add_diff(app, &line);
    add_encode(app, &line.encode);
    add_describe(app, &line);
    app.add_subcommand("help", "What a command does, with examples")
        ->add_option("COMMAND", line.helpOn, "A command's name")
        ->type_name("");
    try {
        app.parse(argc, argv);
        complete(&line);
        return dispatch(app, line);
    } catch (const CLI::Success &success) { // help and version
        return app.exit(success);
    } catch (const CLI::ParseError &error) {
        return refuse_arguments(app, error, argc, argv);
    } catch (const tool::UsageError &error) {
        return refuse(app, error.what());
    }
}

} // namespace

int main(int argc, char **argv) {
    std::signal(SIGPIPE, SIG_IGN); // writing fails instead
    tool::FileBuffer buffer(STDOUT_FILENO);
    std::cout.rdbuf(&buffer);
    std::cout.exceptions(std::ios::badbit);
    int status = tool::exitUnusable;
    try {
        status = run(argc, argv);
        std::cout.flush();
    } catch (const tool::OutputError &error) {
        if (!error.isClosed)
            std::fprintf(stderr, "tarn: cannot write the output: %s\n", error.what());
        status = tool::exitUnusable;
    } catch (const std::bad_alloc &) {
        std::fputs("tarn: out of memory\n", stderr);
        status = tool::exitUnusable;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "tarn: %s\n", error.what());
        status = tool::exitUnusable;
    }
    std::cout.exceptions(std::ios::goodbit);
    std::cout.rdbuf(nullptr);
    return status;
}
