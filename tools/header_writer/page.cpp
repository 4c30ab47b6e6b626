#include "page.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

namespace header_writer {
namespace {

constexpr size_t pageWidth = 100;

std::vector<std::string> split_lines(std::string_view text) {
    std::istringstream stream{std::string(text)};
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

constexpr size_t commentMargin = 3; // "/* ", " * " and the " */" at the end

void wrap_into(std::vector<std::string> &lines, const std::string &paragraph) {
    std::istringstream words(paragraph);
    std::string line;
    for (std::string word; words >> word;) {
        if (!line.empty() && commentMargin + line.size() + 1 + word.size() > pageWidth) {
            lines.push_back(line);
            line.clear();
        }
        line += (line.empty() ? "" : " ") + word;
    }
    if (!line.empty())
        lines.push_back(line);
}

bool is_kept(const std::string &line) {
    return !line.empty() && line.front() == ' ';
}

// Leaves room behind the last word for the end of the comment.
void leave_room(std::vector<std::string> &lines) {
    std::string &last = lines.back();
    if (is_kept(last) || last.size() + 2 * commentMargin <= pageWidth)
        return;
    const size_t space = last.rfind(' ');
    const std::string word = last.substr(space + 1);
    last.erase(space);
    lines.push_back(word);
}

std::vector<std::string> wrapped(std::string_view prose) {
    std::vector<std::string> lines;
    std::string paragraph;
    for (const std::string &line : split_lines(prose)) {
        if (!line.empty() && !is_kept(line)) {
            paragraph += line + " ";
            continue;
        }
        wrap_into(lines, paragraph);
        paragraph.clear();
        lines.push_back(line);
    }
    wrap_into(lines, paragraph);
    leave_room(lines);
    return lines;
}

// Puts as many parameters on a line as fit, aligned at `indent`.
std::string packed(const std::string &head, const std::vector<std::string> &parameters,
                   size_t indent) {
    std::string text = head;
    size_t column = head.size() - (head.rfind('\n') + 1);
    for (size_t i = 0; i < parameters.size(); ++i) {
        const std::string piece = parameters[i] + (i + 1 < parameters.size() ? "," : ");");
        const bool first = column <= indent;
        if (!first && column + 1 + piece.size() > pageWidth) {
            text += "\n" + std::string(indent, ' ');
            column = indent;
        } else if (!first) {
            text += " ";
            ++column;
        }
        text += piece;
        column += piece.size();
    }
    return text;
}

bool fits(const std::string &text) {
    const std::vector<std::string> lines = split_lines(text);
    return std::all_of(lines.begin(), lines.end(),
                       [](const std::string &line) { return line.size() <= pageWidth; });
}

std::string prototype(const std::string &result, const std::string &name,
                      const std::vector<std::string> &parameters) {
    const std::string head = result + (result.back() == '*' ? "" : " ") + name + "(";
    if (parameters.empty())
        return head + "void);";
    std::string aligned = packed(head, parameters, head.size());
    if (fits(aligned))
        return aligned;
    const std::string own = name + "(";
    const std::string lower = result + "\n" + packed(own, parameters, own.size());
    return fits(lower) ? lower : packed(head + "\n    ", parameters, 4);
}

std::string ruled_title(std::string_view title, char rule, size_t width) {
    const std::string text = "/* " + std::string(4, rule) + " " + std::string(title) + " ";
    return text + std::string(width > text.size() ? width - text.size() : 0, rule);
}

} // namespace

void Page::line(std::string_view text) {
    if (text.find('\n') == std::string_view::npos && text.size() > pageWidth)
        throw std::runtime_error("too long for a line: " + std::string(text));
    text_ += text;
    text_ += '\n';
}

void Page::chapter(std::string_view title) {
    line(ruled_title(title, '=', pageWidth - 3) + " */");
    line();
}

void Page::section(std::string_view title) {
    line(ruled_title(title, '-', pageWidth - 3) + " */");
    line();
}

void Page::entry(std::string_view title, std::string_view prose) {
    line(ruled_title(title, '-', pageWidth));
    end_comment(" * ", prose);
    line();
}

void Page::comment(std::string_view prose) {
    end_comment("/* ", prose);
}

void Page::end_comment(const std::string &opening, std::string_view prose) {
    const std::vector<std::string> lines = wrapped(prose);
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string start = i == 0 ? opening : lines[i].empty() ? " *" : " * ";
        const bool last = i + 1 == lines.size();
        line(start + lines[i] + (last && !is_kept(lines[i]) ? " */" : ""));
    }
    if (is_kept(lines.back()))
        line(" */");
}

void Page::structure(const std::string &name, const std::vector<Member> &members) {
    size_t widest = 0;
    for (const Member &member : members)
        if (!member.comment.empty())
            widest = std::max(widest, member.declaration.size());
    line("typedef struct " + name + " {");
    for (const Member &member : members) {
        std::string text = "    " + member.declaration + ";";
        if (!member.comment.empty())
            text += std::string(widest - member.declaration.size() + 1, ' ') + "/* " +
                    member.comment + " */";
        line(text);
    }
    line("} " + name + ";");
    line();
}

void Page::constants(const std::vector<Constant> &constants) {
    if (constants.empty())
        return;
    if (constants.size() == 1) {
        line("enum { " + constants[0].name + " = " + constants[0].value + " };");
    } else {
        line("enum {");
        for (const Constant &constant : constants)
            line("    " + constant.name + " = " + constant.value + ",");
        line("};");
    }
    line();
}

void Page::function(const std::string &result, const std::string &name,
                    const std::vector<std::string> &parameters, std::string_view does) {
    comment(name + " " + std::string(does));
    line(prototype(result, name, parameters));
    line();
    functions_.push_back(name);
}

void Page::notice() {
    comment(
        "Written by header_writer from the rows in src/catalogue; do not edit: change the rows "
        "or tools/header_writer, then run `cmake --build --preset release --target tarn_headers`.");
    line();
}

void Page::begin_header(const std::string &guard, std::string_view prose,
                        const std::vector<std::string> &includes) {
    notice();
    comment(prose);
    line("#ifndef " + guard);
    line("#define " + guard);
    line();
    line("#include <stdint.h>");
    line();
    for (const std::string &include : includes)
        line("#include \"" + include + "\"");
    line();
    line("#ifdef __cplusplus");
    line("extern \"C\" {");
    line("#endif");
    line();
    line("#pragma GCC visibility push(default)");
    line();
}

void Page::end_header() {
    line("#pragma GCC visibility pop");
    line();
    line("#ifdef __cplusplus");
    line("}");
    line("#endif");
    line();
    line("#endif");
}

} // namespace header_writer
