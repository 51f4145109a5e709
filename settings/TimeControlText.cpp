#include "settings/TimeControlText.h"

#include <algorithm>
#include <bit>
#include <optional>

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// What a new file begins with.
constexpr std::string_view Head =
    "# TORVANIX: name = game|moves|fischer|hourglass minutes [then minutes after moves] [plus seconds] [up]\r\n";

std::string_view Trimmed(std::string_view text) {
    const size_t start = std::min(text.find_first_not_of(" \t\r\n"), text.size());
    return text.substr(start, text.find_last_not_of(" \t\r\n") + 1 - start);
}

// A file that was saved in a code page shows by it. Too long a form of a character is let pass.
bool IsUtf8(std::string_view text) {
    while (!text.empty()) {
        const int ones = std::countl_one(static_cast<unsigned char>(text[0]));
        const size_t length = ones == 0 ? 1 : static_cast<size_t>(ones);
        if (ones == 1 || ones > 4 || length > text.size()) return false;
        const auto continues = [](char byte) { return (byte & 0xC0) == 0x80; };
        if (!std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length), continues)) return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string NameIn(std::string_view line) { return std::string(Trimmed(line.substr(0, line.find('=')))); }

// Of a line that says nothing else than a control.
std::optional<NamedTimes> ControlIn(std::string_view line) {
    const size_t sign = line.find('=');
    const auto times = sign == std::string_view::npos ? std::nullopt : TimesOfText(line.substr(sign + 1));
    if (!times || !TimeControlText::IsName(NameIn(line))) return std::nullopt;
    return NamedTimes{NameIn(line), *times};
}

// The lines with their ends.
std::vector<std::string_view> LinesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return lines;
}

bool Has(const std::vector<NamedTimes>& controls, const std::string& name) {
    return std::any_of(controls.begin(), controls.end(), [&](const NamedTimes& one) { return one.Name == name; });
}

struct Reading {
    std::vector<NamedTimes> Controls;
    std::vector<std::string> BadLines;
    // Of each control.
    std::vector<size_t> Lines;
};

Reading Read(std::string_view text) {
    Reading reading;
    if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
    const std::vector<std::string_view> lines = LinesOf(text);
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = Trimmed(lines[i]);
        if (line.empty() || line[0] == '#') continue;
        const auto control = ControlIn(line);
        if (control && !Has(reading.Controls, control->Name)) {
            reading.Controls.push_back(*control);
            reading.Lines.push_back(i);
        } else {
            reading.BadLines.push_back(std::to_string(i + 1) + ": " + std::string(line));
        }
    }
    return reading;
}

// The text with a line in the place of that of a control, without a line if that is empty; nothing if there is none.
std::optional<std::string> WithLine(std::string_view text, const std::string& name, std::string_view line) {
    const Reading reading = Read(text);
    std::string changed;
    if (text.starts_with(ByteOrderMark)) {
        changed = ByteOrderMark;
        text.remove_prefix(ByteOrderMark.size());
    }
    const std::vector<std::string_view> lines = LinesOf(text);
    bool found = false;
    for (size_t i = 0; i < lines.size(); ++i) {
        const auto place = std::find(reading.Lines.begin(), reading.Lines.end(), i);
        const bool wanted = place != reading.Lines.end() &&
                            reading.Controls[static_cast<size_t>(place - reading.Lines.begin())].Name == name;
        changed += wanted ? line : lines[i];
        found = found || wanted;
    }
    if (!found) return std::nullopt;
    return changed;
}

}  // namespace

std::vector<NamedTimes> TimeControlText::Controls() const { return Read(text).Controls; }

std::vector<std::string> TimeControlText::BadLines() const { return Read(text).BadLines; }

void TimeControlText::Keep(const std::string& name, const GameTimes& times) {
    const std::string line = name + " = " + TextOf(times) + "\r\n";
    if (const auto changed = WithLine(text, name, line)) {
        text = *changed;
        return;
    }
    if (text.empty()) text = Head;
    if (text.back() != '\n') text += "\r\n";
    text += line;
}

void TimeControlText::Remove(const std::string& name) { text = WithLine(text, name, "").value_or(text); }

bool TimeControlText::IsName(const std::string& name) {
    const auto bad = [](char character) {
        return character == '=' || static_cast<unsigned char>(character) < ' ' || character == 0x7F;
    };
    return !name.empty() && name == Trimmed(name) && name[0] != '#' && std::none_of(name.begin(), name.end(), bad) &&
           IsUtf8(name);
}
