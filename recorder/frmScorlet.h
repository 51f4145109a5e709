#pragma once

#include "platform/Form.h"
#include "recorder/BoardInput.h"
#include "recorder/BoardMouse.h"
#include "recorder/ScorletControls.h"
#include "recorder/ScorletGame.h"

#include <optional>

// The Scorlet window: the board, the captured pieces, the promotion picker, the Say list and the move lists.
class frmScorlet : public Form, private RecordView {
  public:
    // The game must outlive the window; it keeps a record for as long as there is the window. `shell` is the window
    // that closes this one and prints its lists: it is sent the commands mnuCloseScorlet and mnuPrint and those of
    // accelerators, and WM_SCORLETGONE at the end.
    frmScorlet(const Surroundings& around, ScorletGame& game, HWND shell)
        : Form(around), game(game), recorder(game.OpenRecord(*this)), shell(shell) {}
    ~frmScorlet() override;

    // Opens the window at `place` on the screen, without taking the focus. The text, empty on success, says which
    // picture could not be loaded; moves can be entered all the same. Throws SystemError.
    std::wstring Open(const Box& place);

    // Keys of the window. True: the message is done with.
    bool TakeMessage(MSG& message);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::wstring SpokenName(int id) const override { return controls.SpokenName(captions, id); }
    std::wstring SpokenPart(int id, int part) const override { return controls.SpokenPart(id, part); }
    void RecordChanged(const ChosenLines& chosen) override;
    void RecordReplaced() override;
    void RecordStepped(const ChosenLines& chosen) override;
    ChosenLines Chosen() const override { return controls.Lists.Chosen(); }
    void ShowWhoseMove() override;

    // Shows the record anew, with a line chosen.
    void ShowRecord(std::optional<ChosenLine> chosen = std::nullopt);
    // After the window has changed it.
    void ShowEdit(std::optional<ChosenLine> chosen = std::nullopt);
    void Arrange();
    void ShowNames();
    void ShowBoard();

    void LookBackAtChosen(Side list);
    void EndLookBack();
    void OnListKey(WPARAM key);
    void OnCommand(int id, int notification);
    void OnMouseDown(POINT point);
    void OnSquare(Square square);
    // After a piece has been picked or dropped, which may have written a line or put a captured piece back.
    void ShowEntered(const std::optional<ChosenLine>& line, bool puttingBack);
    bool OnBoardKey(WPARAM key);
    bool OnBoardCharacter(wchar_t character);
    void Promote(PieceKind kind);
    void EndTyping(bool enter);
    bool OnContextMenu(HWND control, POINT point);  // true: the control has a menu of its own
    void EndEdit(bool accept);
    bool OnSetCursor() const;
    void OnGetMinMaxInfo(MINMAXINFO& info) const;
    int ChildAt(POINT point) const;

    ScorletGame& game;
    Recorder& recorder;
    const HWND shell;
    BoardInput input{recorder};
    ScorletControls controls{*this, recorder, input};
    // What the controls are laid out for.
    struct Arrangement {
        LONG Width, Height;
        int Dpi;
        bool Turned;
        bool operator==(const Arrangement&) const = default;
    };
    Arrangement arranged{};
    bool boardWaits = false;  // to be drawn as a whole
    BoardMouse mouse{*this, input, controls.Painter, controls.Layout};
    Side menuList = White;
    std::optional<LookBack> lookBack;
    UniqueCursor handPointBlue;
};
