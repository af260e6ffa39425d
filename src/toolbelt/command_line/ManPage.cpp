#include "toolbelt/command_line/ManPage.h"

#include <CLI/CLI.hpp>
#include <sstream>

#include "base/Text.h"
#include "toolbelt/command_line/HelpFormatter.h"

namespace quendle {
namespace {

// Text of a line: nothing in it is taken for a request or changed in print.
std::string Escaped(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '\\') {
      out += "\\e";
    } else if (c == '-') {
      out += "\\-";
    } else if (c == '`' || c == '^' || c == '~') {
      out += c == '`' ? "\\(ga" : c == '^' ? "\\(ha" : "\\(ti";
    } else {
      out += c;
    }
  }
  return out.starts_with('.') || out.starts_with('\'') ? "\\&" + out : out;
}

std::string Bold(const std::string& text) { return "\\fB" + Escaped(text) + "\\fR"; }

std::string UpperCase(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

void Entry(std::string& page, const std::string& name, const std::string& text) {
  page += ".TP\n" + name + "\n" + Escaped(text) + "\n";
}

void Head(std::string& page, const std::string& name, const std::string& description) {
  page += ".TH " + UpperCase(name) + " 1\n.SH NAME\n" + Escaped(name) + " \\- " +
          Escaped(description) + "\n.SH SYNOPSIS\n";
}

void Options(std::string& page, const CLI::App& app, bool words) {
  const auto options = app.get_options(
      [words](const CLI::Option* option) { return option->get_positional() == words; });
  if (options.empty()) return;
  page += words ? ".SH WORDS\n" : ".SH OPTIONS\n";
  for (const CLI::Option* option : options) {
    const std::string argument = ArgumentOfOption(*option);
    Entry(page,
          Bold(NamesOfOption(*option)) +
              (argument.empty() ? "" : " \\fI" + Escaped(argument) + "\\fR"),
          HelpOfOption(*option));
  }
}

bool IsHeading(const std::string& line) {
  return line.ends_with(':') && line.front() != ' ' && line.size() <= 24;
}

// The footer of a help: paragraphs, "Heading:", and indented lines that stand as they are.
void Footer(std::string& page, const std::string& footer) {
  std::istringstream lines(footer);
  bool as_it_stands = false, paragraph = true;
  for (std::string line; std::getline(lines, line);) {
    const bool indented = line.starts_with("  ");
    if (as_it_stands && !indented && !line.empty()) {
      page += ".fi\n";
      as_it_stands = false;
    }
    if (line.empty()) {
      paragraph = true;
      continue;
    }
    if (IsHeading(line)) {
      page += ".SH " + UpperCase(line.substr(0, line.size() - 1)) + "\n";
    } else {
      if (paragraph) page += ".PP\n";
      if (indented && !as_it_stands) page += ".nf\n";
      as_it_stands = indented;
      page += Escaped(indented ? line.substr(2) : line) + "\n";
    }
    paragraph = false;
  }
  if (as_it_stands) page += ".fi\n";
}

}  // namespace

std::string ManPageOfCommand(const CLI::App& command) {
  std::string page;
  Head(page, "quendle-" + command.get_name(), command.get_description());
  page += Bold("quendle " + command.get_name()) + " [\\fIOPTIONS\\fR]";
  for (const CLI::Option* word :
       command.get_options([](const CLI::Option* option) { return option->get_positional(); })) {
    const std::string name = "\\fI" + Escaped(NamesOfOption(*word)) + "\\fR";
    page += word->get_required() ? " " + name : " [" + name + "]";
  }
  page += "\n";
  Options(page, command, true);
  Options(page, command, false);
  page += ".SH DESCRIPTION\n" + Escaped(command.get_description() + ".") + "\n";
  Footer(page, command.get_footer());
  page += ".SH SEE ALSO\n" + Bold("quendle") + "(1)\n";
  return page;
}

std::string ManPageOfBelt(const CLI::App& belt) {
  std::string page;
  Head(page, belt.get_name(), belt.get_description());
  page += Bold(belt.get_name()) + " [\\fIOPTIONS\\fR] [\\fICOMMAND\\fR]\n";
  Options(page, belt, false);
  std::string group;
  for (const CLI::App* command : belt.get_subcommands({})) {
    if (command->get_group() != group) {
      group = command->get_group();
      page += ".SH " + UpperCase(group) + "\n";
    }
    Entry(page, Bold("quendle-" + command->get_name()) + "(1)", command->get_description());
  }
  Footer(page, belt.get_footer());
  return page;
}

}  // namespace quendle
