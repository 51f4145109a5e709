#pragma once

#include "base/Box.h"
#include "tests/desktop/Desktop.h"

#include <chrono>
#include <map>
#include <memory>
#include <stdexcept>

// The words of a step after its first.
class Words {
  public:
    explicit Words(const std::vector<std::string>& words) : words(words) {}
    bool More() const { return next < words.size(); }
    std::string Take();
    int Number() { return std::stoi(Take()); }

  private:
    const std::vector<std::string>& words;
    size_t next = 1;
};

// Plays steps with the real program in a folder of its own. Steps are parted by " / "; each is a word with what it
// takes, and what one of them looks for it waits for. StepLooks.cpp, StepInput.cpp and StepFaults.cpp have the words; a
// line "word = steps" in a file of steps adds one, whose parts are $1, $2 and so on. A text that is looked for may hold
// * for any text; %FOLDER% in it is the program's folder.
class Steps {
  public:
    Steps();
    ~Steps();

    // Throws std::runtime_error at the step that fails, with what there was and what should have been.
    void Do(const std::string& steps);

    const std::wstring& Folder() const { return folder.Path(); }
    ProgramRun& Program() { return *program; }
    // Starts a copy of the program in the folder, or the program where it is installed.
    void Launch(const std::wstring& installed = {});

  private:
    using Time = std::chrono::steady_clock;

    void Add(const char* word, std::function<void(Words&)> action) { actions[word] = std::move(action); }
    void AddLooks();
    void AddInput();
    void AddFaults();
    void RunShell(const std::string& lines) const;

    HWND Find(const std::string& name) const;   // null where there is none now
    HWND Shown(const std::string& name) const;  // waited for
    std::string ValueOf(const std::string& name) const;
    std::string Turn();
    std::string Counts() const { return ValueOf("lblMoveCount.W") + ValueOf("lblMoveCount.B"); }
    std::string Face() const;  // of the side to move

    std::string State() const;  // counts, lists and board
    int SecondsLeft() const;    // on both faces together

    TestFolder folder;
    std::unique_ptr<ProgramRun> program, other;  // that runs beside it
    std::map<std::string, Box> places;           // that have been noted
    std::vector<std::string> states;             // of the game, that have been noted
    size_t compared = 0;                         // of these
    bool cameBack[2]{};                          // after a kill: the state before, the one after
    std::map<std::string, std::function<void(Words&)>> actions;
    UniqueFile held;
    Time::duration savingTime{};
    std::string linesAtEnd;
    HWND viewer = nullptr;  // of the help
};

[[noreturn]] inline void Fail(const std::string& what) { throw std::runtime_error(what); }

// The number of "lblFace.B", "imgKnight+3" or "e4".
int IdOf(const std::string& name);

// Waits until a text comes to be the one that is wanted, in which * stands for any text.
void Await(const std::function<std::string()>& got, const std::string& wanted);
void Until(const std::function<bool()>& condition, const std::string& otherwise, int milliseconds = Patience);

DWORD ExitCodeOf(HANDLE process);

// Makes a test of each scenario in the files of steps of a folder of tests: a line "# name", and lines of steps.
void RegisterScenarios(const std::string& folder);
