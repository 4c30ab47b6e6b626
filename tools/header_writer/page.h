// One text file in the making, with the layout rules that every written header follows.
#ifndef HEADER_WRITER_PAGE_H
#define HEADER_WRITER_PAGE_H

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace header_writer {

// A struct's member with the comment that stands behind it, which may be empty.
struct Member {
    std::string declaration;
    std::string comment;
};

// A name for a number of the protocol.
struct Constant {
    std::string name;
    std::string value;
};

class Page {
public:
    // Writes one line as it is.
    void line(std::string_view text = "");

    // Writes a line across the page that carries a title: a heavy one before a part of the page,
    // a light one before a group of declarations.
    void chapter(std::string_view title);
    void section(std::string_view title);
    // Writes such a line and beneath it, in the same comment, prose.
    void entry(std::string_view title, std::string_view prose);

    // Writes prose as one comment, wrapped to the page. Blank lines part paragraphs; a line that
    // begins with a space is kept as it is.
    void comment(std::string_view prose);

    // Writes a struct and its typedef of the same name.
    void structure(const std::string &name, const std::vector<Member> &members);

    // Writes an enumeration without a name; nothing for none.
    void constants(const std::vector<Constant> &constants);

    // Writes a prototype beneath its comment, which is the function's name and `does`.
    void function(const std::string &result, const std::string &name,
                  const std::vector<std::string> &parameters, std::string_view does);

    // Says that the file is written and by what.
    void notice();

    // What stands at the head and at the foot of every header. The head leaves the page ready for
    // declarations.
    void begin_header(const std::string &guard, std::string_view prose,
                      const std::vector<std::string> &includes);
    void end_header();

    const std::string &text() const { return text_; }
    // The names of all functions written, in their order on the page.
    const std::vector<std::string> &functions() const { return functions_; }

private:
    // Writes the rest of a comment whose first line begins with `opening`.
    void end_comment(const std::string &opening, std::string_view prose);

    std::string text_;
    std::vector<std::string> functions_;
};

} // namespace header_writer

#endif
