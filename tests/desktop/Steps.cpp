#include "tests/desktop/Steps.h"

#include "platform/Process.h"
#include "resources/Version.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <regex>

namespace {

const std::map<std::string, int> Controls{
#include "tests/ControlNames.inc"
    {"OK", IDOK},
    {"Yes", IDYES},
    {"No", IDNO},
};

struct Scenario {
    std::filesystem::path File;
    int Number;
    std::string Name;
    std::map<int, std::string> Lines;  // by their numbers
};
struct Script {
    std::map<std::string, std::string> Words;  // and the steps that each stands for
    std::vector<Scenario> Scenarios;
};

Script ReadFiles() {
    Script script;
    const std::regex word("([a-z0-9-]+) = (.*)");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TESTS)) {
        const std::filesystem::path& file = entry.path();
        std::ifstream lines(file.extension() == ".steps" ? file : "");
        std::string line;
        for (int number = 1; std::getline(lines, line); ++number) {
            std::smatch parts;
            if (std::regex_match(line, parts, word))
                script.Words[parts[1]] = parts[2];
            else if (line.starts_with("# "))
                script.Scenarios.push_back({file, number, line.substr(2), {}});
            else if (!line.empty() && (script.Scenarios.empty() || script.Scenarios.back().File != file))
                Fail(file.string() + " begins with neither a word nor a scenario");
            else if (!line.empty())
                script.Scenarios.back().Lines[number] = line;
        }
    }
    return script;
}

const Script& TheScript() {
    static const Script script = ReadFiles();
    return script;
}

// Steps apart, and the words of each: quotation marks keep blanks and strokes together.
std::vector<std::vector<std::string>> Split(const std::string& line) {
    if (std::count(line.begin(), line.end(), '"') % 2 != 0) Fail("a quotation mark is missing");
    static const std::regex word(R"((?:[^ "]|"[^"]*")+)");
    std::vector<std::vector<std::string>> steps(1);
    for (std::sregex_iterator it(line.begin(), line.end(), word), end; it != end; ++it) {
        std::string text = it->str();
        if (text == "/") {
            steps.emplace_back();
        } else {
            std::erase(text, '"');
            steps.back().push_back(text);
        }
    }
    return steps;
}

bool Matches(std::string_view got, std::string_view wanted) {
    const size_t star = wanted.find('*');
    if (star == std::string_view::npos) return got == wanted;
    if (!got.starts_with(wanted.substr(0, star))) return false;
    for (size_t from = star; from <= got.size(); ++from) {
        if (Matches(got.substr(from), wanted.substr(star + 1))) return true;
    }
    return false;
}

struct ScenarioTest : testing::Test {
    explicit ScenarioTest(const Scenario& scenario) : Played(scenario) {}

    void TestBody() override {
        Steps steps;
        int number = Played.Number;
        try {
            if (Played.Lines.empty()) Fail("no steps");
            for (const auto& line : Played.Lines) {
                number = line.first;
                steps.Do(line.second);
            }
        } catch (const std::exception& error) {
            ADD_FAILURE_AT(Played.File.string().c_str(), number) << error.what();
        }
    }

    const Scenario& Played;
};

}  // namespace

void RegisterScenarios(const std::string& folder) {
    int count = 0;
    for (const Scenario& scenario : TheScript().Scenarios) {
        if (scenario.File.parent_path().filename() != folder) continue;
        ++count;
        const std::string name = std::regex_replace(scenario.Name, std::regex("\\W"), "_");
        testing::RegisterTest(scenario.File.stem().string().c_str(), name.c_str(), nullptr, nullptr,
                              scenario.File.string().c_str(), scenario.Number,
                              [&]() -> testing::Test* { return new ScenarioTest(scenario); });
    }
    if (count == 0) Fail("no scenarios in " + folder);
}

int IdOf(const std::string& name) {
    if (name.size() == 2 && name[0] >= 'a') return picBoard + (name[0] - 'a' + 1) * 10 + (name[1] - '0');
    const size_t end = std::min(name.find_first_of(".+"), name.size());
    const auto found = Controls.find(name.substr(0, end));
    if (found == Controls.end()) Fail("no control " + name);
    const std::string rest = name.substr(end);
    if (rest.empty() || rest == ".W") return found->second;
    return found->second + (rest == ".B" ? 1 : std::stoi(rest));
}

void Await(const std::function<std::string()>& got, const std::string& wanted) {
    std::string last;
    if (!Eventually([&] { return Matches(last = got(), wanted); })) Fail("got  " + last + "\nwant " + wanted);
}

void Until(const std::function<bool()>& condition, const std::string& otherwise, int milliseconds) {
    if (!Eventually(condition, milliseconds)) Fail(otherwise);
}

DWORD ExitCodeOf(HANDLE process) {
    DWORD code = 0;
    GetExitCodeProcess(process, &code);
    return code;
}

std::string Words::Take() {
    if (!More()) Fail("too few words");
    std::array<wchar_t, 1 << 12> expanded{};
    ExpandEnvironmentStringsW(Wide(words[next++]).c_str(), expanded.data(), static_cast<DWORD>(expanded.size()));
    return Utf8(expanded.data());
}

Steps::Steps() {
    std::array<wchar_t, 16> today{};
    GetDateFormatW(LOCALE_INVARIANT, 0, nullptr, L"dd'/'MM'/'yyyy", today.data(), static_cast<int>(today.size()));
    SetEnvironmentVariableW(L"TODAY", today.data());
    SetEnvironmentVariableW(L"VERSION", Wide(TORVANIX_VERSION).c_str());
    SetEnvironmentVariableW(L"BUILD", BuildFolder().c_str());
    SetEnvironmentVariableW(L"FOLDER", folder.Path().c_str());
    AddLooks();
    AddInput();
    AddFaults();
}

Steps::~Steps() {
    program.reset();
    other.reset();
    try {
        if (!linesAtEnd.empty()) RunShell(linesAtEnd);
    } catch (const std::exception& error) {
        ADD_FAILURE() << error.what();
    }
}

void Steps::Do(const std::string& steps) {
    for (const std::vector<std::string>& step : Split(steps)) {
        std::string shown;
        for (const std::string& word : step) shown += word + " ";
        try {
            if (const auto found = TheScript().Words.find(step.at(0)); found != TheScript().Words.end()) {
                std::string body = found->second;
                for (size_t part = 1; part < step.size(); ++part) {
                    const std::regex mark("\\$" + std::to_string(part));
                    body = std::regex_replace(body, mark, step[part]);
                }
                Do(body);
                continue;
            }
            const auto action = actions.find(step[0]);
            if (action == actions.end()) Fail("no such word");
            Words words(step);
            action->second(words);
            if (words.More()) Fail("too many words");
        } catch (const std::exception& error) {
            Fail(shown + "\n" + error.what());
        }
    }
}

void Steps::Launch(const std::wstring& installed) {
    program.reset();
    const std::wstring copy = folder.Path() + L"torvanix.exe";
    if (installed.empty()) CopyFileW((BuildFolder() + L"torvanix.exe").c_str(), copy.c_str(), FALSE);
    program = std::make_unique<ProgramRun>(installed.empty() ? copy : installed);
    const auto ready = [&] {
        const HWND clock = program->FindWindowNow(L"frmClock");
        if (program->Message()) return true;
        // All that opens at the start has opened once it waits for input.
        return clock && WaitForInputIdle(program->Process(), 0) == 0 && GetForegroundWindow() == clock &&
               IsChild(clock, program->Focused());
    };
    if (!Eventually(ready)) Fail("the program does not open its window");
}

void Steps::RunShell(const std::string& lines) const {
    const std::wstring done = folder.Path() + L"lines.done";
    WriteFileText(folder.Path() + L"lines.sh",
                  "BUILD=" TEST_BUILD
                  "; W=${PWD%/drive_c/*}/drive_c/windows; U=${PWD%/Temp/*}; U=${U%/AppData/Local}\n(" +
                      lines + "\n) >lines.out 2>&1\necho $? >>lines.out; exec mv lines.out lines.done\n");
    StartProgram({}, L"Z:\\bin\\sh lines.sh", folder.Path());
    if (!Eventually([&] { return Exists(done); })) Fail("the shell does not end");
    const std::string output = ReadFileText(done);
    Remove(done);
    if (!("\n" + output).ends_with("\n0\n")) Fail(output);
}

HWND Steps::Find(const std::string& name) const {
    if (name == "message") return program->Message();
    if (name == "popup") return program->FindWindowNow(L"#32768");
    if (name == "help") return viewer;
    if (name.starts_with("frm")) return program->FindWindowNow(Wide(name));
    for (const HWND window : program->Windows()) {
        if (const HWND control = GetDlgItem(window, IdOf(name))) return control;
    }
    return nullptr;
}

HWND Steps::Shown(const std::string& name) const {
    HWND window = nullptr;
    if (!Eventually([&] { return IsWindowVisible(window = Find(name)); })) Fail(name + " is not there");
    return window;
}

// What a control shows: the lines of a list by "|", "on" or "off" of a check box, or else its text.
std::string Steps::ValueOf(const std::string& name) const {
    const HWND control = Find(name);
    if (IsKind(control, L"BUTTON") && (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX)
        return SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED ? "on" : "off";
    if (!IsKind(control, L"LISTBOX")) return Utf8(TextOf(control));
    std::string lines;
    for (LRESULT i = 0, count = SendMessageW(control, LB_GETCOUNT, 0, 0); i < count; ++i) {
        std::array<wchar_t, 256> line{};
        SendMessageW(control, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(line.data()));
        lines += (i > 0 ? "|" : "") + Utf8(line.data());
    }
    return lines;
}

std::string Steps::State() const {
    std::string state = Counts() + " " + ValueOf("lstMoves.W") + " / " + ValueOf("lstMoves.B");
    for (int i = 0; i < 64; ++i)
        state += " " + ValueOf({static_cast<char>('a' + i % 8), static_cast<char>('1' + i / 8)});
    return state;
}

int Steps::SecondsLeft() const {
    int left = 0;
    for (const std::string& face : {ValueOf("lblFace.W"), ValueOf("lblFace.B")})
        left += std::stoi(face) * 3600 + std::stoi(face.substr(3)) * 60 + std::stoi(face.substr(6));
    return left;
}

// The move numbers, and for each side what it can do, whether it has the focus, and its marks that are shown.
std::string Steps::Turn() {
    std::string turn;
    for (Side side : BothSides) {
        turn += Utf8(TextOf(program->Control(ControlOf(lblMoveCount, side))));
        for (const auto& [id, what] : {std::pair{cmdClock, " press"}, {cmdPause, " pause"}})
            turn += IsWindowEnabled(program->Control(ControlOf(id, side))) ? what : "";
        turn += program->Focused() == program->Control(ControlOf(cmdClock, side)) ? " focus " : " ";
        for (int mark = 0; mark < TurnMarksPerSide; ++mark)
            turn += IsWindowVisible(program->Control(TurnMark(side, mark))) ? "!" : "";
    }
    return turn;
}
