#include "tests/desktop/Steps.h"

#include "app/WindowPlaces.h"

#include <commctrl.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <sstream>

// The words that look at the program, or wait for something to be seen.

namespace {

// A text of several lines, their ends as "|".
std::string InOneLine(std::string text) {
    for (size_t at; (at = text.find("\r\n")) != std::string::npos;) text.replace(at, 2, "|");
    return text;
}

// What the program has played, where the sound system of this machine writes it to a file.
std::wstring CaptureFile() {
    const wchar_t* path = _wgetenv(L"TORVANIX_SOUND_CAPTURE");
    return path ? path : throw std::runtime_error("TORVANIX_SOUND_CAPTURE names no file");
}

// Samples of the last sound played that are not silence: every sound begins the 16-bit stream anew.
size_t LoudSamples() {
    const std::string stream = ReadFileText(CaptureFile());
    std::vector<int16_t> samples(stream.size() / sizeof(int16_t));
    std::memcpy(samples.data(), stream.data(), samples.size() * sizeof(int16_t));
    return static_cast<size_t>(
        std::count_if(samples.begin(), samples.end(), [](int16_t sample) { return std::abs(sample) > 2000; }));
}

HWND EditorText() {
    const HWND editor = FindWindowW(L"Notepad", nullptr);
    return editor && IsWindowVisible(editor) ? GetWindow(editor, GW_CHILD) : nullptr;
}

std::string InFront() {
    const HWND window = GetForegroundWindow();
    std::array<wchar_t, 64> kind{};
    GetClassNameW(window, kind.data(), static_cast<int>(kind.size()));
    return Utf8(kind.data()) + " \"" + Utf8(TextOf(window)) + "\"";
}

Box BoxOf(HWND window) {
    const RECT area = AreaOf(window);
    return {area.left, area.top, area.right - area.left, area.bottom - area.top};
}

std::string TextOf(const Box& box) {
    std::ostringstream text;
    text << box.Left << ":" << box.Top << " " << box.Width << "x" << box.Height;
    return text.str();
}

// The help viewer, null until it shows its contents tree and is done with opening: before that it takes the foreground
// again.
HWND OpenViewer() {
    const HWND viewer = FindWindowW(L"HH Parent", nullptr);
    bool books = false;
    const auto lookForTree = [](HWND child, LPARAM found) -> BOOL {
        if (IsKind(child, WC_TREEVIEWW)) *reinterpret_cast<bool*>(found) = SendMessageW(child, TVM_GETCOUNT, 0, 0) > 0;
        return TRUE;
    };
    EnumChildWindows(viewer, lookForTree, reinterpret_cast<LPARAM>(&books));
    const UniqueFile process(OpenProcess(PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, ProcessOf(viewer)));
    return books && WaitForInputIdle(process.get(), 0) == 0 && GetForegroundWindow() == viewer ? viewer : nullptr;
}

}  // namespace

std::string Steps::Face() const {
    const bool white = std::stoi(ValueOf("lblMoveCount.W")) > std::stoi(ValueOf("lblMoveCount.B"));
    return ValueOf(white ? "lblFace.W" : "lblFace.B");
}

void Steps::AddLooks() {
    const auto each = [this](const char* word, std::function<bool(HWND)> holds) {
        Add(word, [this, holds](Words& words) {
            while (words.More()) {
                const std::string name = words.Take();
                if (!Eventually([&] { return holds(Find(name)); })) Fail(name + ", in front is " + InFront());
            }
        });
    };
    each("shown", [](HWND window) { return IsWindowVisible(window) != 0; });
    each("hidden", [](HWND window) { return !IsWindowVisible(window); });
    each("enabled", [](HWND window) { return IsWindowEnabled(window) != 0; });
    each("disabled", [](HWND window) { return window && !IsWindowEnabled(window); });
    // Its own thread knows it too: a key that comes before that could go to another window.
    each("in-front", [](HWND window) {
        GUITHREADINFO thread{};
        thread.cbSize = sizeof(thread);
        return window && window == GetForegroundWindow() &&
               GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread) && thread.hwndActive == window;
    });
    each("focus", [this](HWND window) { return window && window == program->Focused(); });
    each("shut", [](HWND list) { return !SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0); });
    Add("see", [this](Words& words) {
        const std::string name = words.Take();
        Await([&] { return ValueOf(name); }, words.Take());
    });
    // To a screen reader.
    Add("says", [this](Words& words) {
        const HWND control = Shown(words.Take());
        Await([&] { return Utf8(SpokenName(control)); }, words.Take());
    });
    // So does a row of a list, counted from 1.
    Add("says-row", [this](Words& words) {
        const HWND list = Shown(words.Take());
        const int row = words.Number();
        Await([&] { return Utf8(SpokenName(list, row)); }, words.Take());
    });
    // The first row that is in sight.
    Add("top-row", [this](Words& words) {
        const HWND list = Shown(words.Take());
        Await([&] { return std::to_string(SendMessageW(list, LB_GETTOPINDEX, 0, 0) + 1); }, words.Take());
    });
    Add("lists", [this](Words& words) {
        Await([this] { return ValueOf("lstMoves.W") + " / " + ValueOf("lstMoves.B"); }, words.Take());
    });
    // Both lists show their last row, or their first, and the same rows.
    const auto listsShow = [this](bool last) {
        std::array<LRESULT, 2> tops{};
        for (const int side : {0, 1}) {
            const HWND list = Find(side == 0 ? "lstMoves.W" : "lstMoves.B");
            RECT row{}, area{};
            SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(SendMessageW(list, LB_GETCOUNT, 0, 0) - 1),
                         reinterpret_cast<LPARAM>(&row));
            GetClientRect(list, &area);
            tops[side] = SendMessageW(list, LB_GETTOPINDEX, 0, 0);
            if (last ? row.bottom > area.bottom : tops[side] > 0) return false;
        }
        return tops[0] == tops[1];
    };
    Add("last-moves", [=](Words&) { Until([=] { return listsShow(true); }, "the last moves are not in sight"); });
    Add("first-moves", [=](Words&) { Until([=] { return listsShow(false); }, "the first moves are not in sight"); });
    Add("counts", [this](Words& words) { Await([this] { return Counts(); }, words.Take()); });
    // The move numbers while the clock runs, and all that shows whose turn it is.
    Add("turn", [this](Words& words) {
        const std::string white = words.Take(), black = words.Take(), runs = ". press pause focus !!!", waits = ". ";
        const bool turn = std::stoi(white) > std::stoi(black);
        Await([this] { return Turn(); }, white + (turn ? runs : waits) + black + (turn ? waits : runs));
    });
    // With the button that answers it, where one does. No other window takes input meanwhile.
    Add("message", [this](Words& words) {
        HWND box = nullptr;
        const auto text = [&] {
            // Anew, since one message may follow another.
            box = Shown("message");
            std::string all;
            for (HWND part = nullptr; (part = FindWindowExW(box, part, L"Static", nullptr)) != nullptr;)
                all += Utf8(TextOf(part));
            return all;
        };
        Await(text, words.Take());
        for (const char* form : {"frmClock", "frmScorlet", "frmSetup", "frmFiles"}) {
            if (IsWindowEnabled(Find(form))) Fail(std::string(form) + " is enabled beside it");
        }
        if (!words.More()) return;
        Click(Shown(words.Take()));
        Until([&] { return !IsWindow(box); }, "the message stays");
    });
    // Both windows lie in the work area, and neither covers the other.
    Add("apart", [this](Words&) {
        Until(
            [this] {
                const HWND clock = Find("frmClock"), scorlet = Find("frmScorlet");
                RECT work{};
                SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
                const Box area{work.left, work.top, work.right - work.left, work.bottom - work.top};
                return IsWindowVisible(clock) && IsWindowVisible(scorlet) &&
                       BothInSight({BoxOf(clock), BoxOf(scorlet)}, area, area);
            },
            "they are not");
    });
    // The places of windows, and that they come back there.
    Add("note-places", [this](Words& words) {
        for (std::string name; words.More();) places[name] = BoxOf(Shown(name = words.Take()));
    });
    Add("in-place", [this](Words& words) {
        for (std::string name; words.More();)
            Await([&] { return TextOf(BoxOf(Find(name))); }, TextOf(places.at(name = words.Take())));
    });
    // The client area of a window is the whole screen.
    Add("full-screen", [this](Words&) {
        Until(
            [this] {
                RECT client{};
                GetClientRect(Find("frmClock"), &client);
                return client.right == GetSystemMetrics(SM_CXSCREEN) && client.bottom == GetSystemMetrics(SM_CYSCREEN);
            },
            "it is not");
    });
    // Until what has been sent to the window so far has been dealt with.
    Add("settle", [this](Words&) { SendMessageW(program->Clock(), WM_NULL, 0, 0); });
    Add("runs", [this](Words&) { Until([this, before = Face()] { return Face() != before; }, "the clock stands"); });
    // For longer than a tick takes.
    Add("stands", [this](Words&) {
        if (Eventually([this, before = Face()] { return Face() != before; }, 1200)) Fail("the clock runs");
    });
    Add("listen", [](Words&) { Remove(CaptureFile()); });
    Add("no-sound", [](Words&) { Await([] { return Exists(CaptureFile()) ? "a device" : ""; }, ""); });
    // How many samples of the last sound played are loud: none, or more than so many.
    Add("quiet", [](Words&) { Await([] { return std::to_string(LoudSamples()); }, "0"); });
    Add("loud", [](Words& words) {
        const auto wanted = static_cast<size_t>(words.Number());
        Until([&] { return LoudSamples() > wanted; }, "less");
    });
    // The viewer of the help, a new one each time that it opens.
    Add("help-opens", [this](Words&) {
        const HWND before = viewer;
        Until([&] { return (viewer = OpenViewer()) && viewer != before && !IsWindow(before); }, "no new viewer");
    });
    // The text in the editor, which then is ended.
    Add("editor", [](Words& words) {
        Until([] { return EditorText() != nullptr; }, "no editor");
        const UniqueFile editor(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, ProcessOf(EditorText())));
        Await([] { return InOneLine(Utf8(TextOf(EditorText()))); }, words.Take());
        TerminateProcess(editor.get(), 0);
        WaitForSingleObject(editor.get(), 5000);
    });
    Add("ended", [this](Words& words) {
        Await([this] { return std::to_string(ExitCodeOf(program->Process())); }, words.Take());
    });
}
