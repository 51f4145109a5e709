#pragma once

#include "platform/Form.h"
#include "recorder/BoardInput.h"
#include "recorder/MoveField.h"
#include "recorder/Recorder.h"
#include "recorder/SayList.h"
#include "recorder/ScorletPainter.h"

#include <array>
#include <optional>

// What the Scorlet needs from the clock beside it.
class ScorletHost {
  public:
    virtual std::array<int32_t, 2> MoveCounts() const = 0;
    virtual void PressEnabledClock() = 0;
    virtual void PauseForResult() = 0;  // a declaration has ended the game
    virtual void PrintMoveList() = 0;
    virtual void CloseScorlet() = 0;  // asks, and destroys the window on Yes
    virtual void ScorletDestroyed() = 0;

  protected:
    ~ScorletHost() = default;
};

// The Scorlet window: the board, the captured pieces, the promotion picker, the Say list and the move lists.
class frmScorlet : public Form {
  public:
    // All of them must outlive the window.
    frmScorlet(ScorletHost& host, const Texts& texts, const MessageBoxes& messageBoxes)
        : Form(texts, messageBoxes), host(host) {}
    ~frmScorlet() override;

    // Opens the window at `place` on the screen, without taking the focus. The text, empty on success, says which
    // picture could not be loaded; moves can be entered all the same. Throws SystemError.
    std::wstring Open(const RECT& place);

    Recorder& Record() { return recorder; }
    // Shows the record anew, with a line chosen.
    void ShowRecord(std::optional<ChosenLine> chosen = std::nullopt);
    // Takes another record; what is under way ends.
    void TakeRecord(const Recorder& record);
    void ResetRecord() { TakeRecord({}); }
    // Fills the lists up to the clock's counts, the added lines chosen.
    void TopUpMoveLists();

    // Keys of the window. True: the message is done with.
    bool TakeMessage(MSG& message);

    // The size of a window whose client area has the size of the design, for the resolution of `dpi`.
    static SIZE DesignSize(int dpi);

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    std::wstring SpokenName(int id) const override;

    void CreateControls();
    void ApplyTexts();
    void Arrange();
    void ShowAdded(const std::array<std::optional<size_t>, 2>& added);
    void ShowBoard();
    void ShowList(Side side);
    void ChooseLine(const ChosenLine& line);

    void OnCommand(int id, int notification);
    void OnMouseDown(POINT point);
    void OnSquare(Square square);
    bool OnBoardKey(WPARAM key);
    bool OnContextMenu(HWND control, POINT point);  // true: the control has a menu of its own
    void OnDeclare(Declaration declaration);
    void BeginEdit(Side side);
    void EndEdit(bool accept);
    void OnDrawItem(const DRAWITEMSTRUCT& item) const;
    bool OnSetCursor() const;
    void OnGetMinMaxInfo(MINMAXINFO& info) const;
    int ChildAt(POINT point) const;
    bool Editing() const { return edited.has_value(); }

    static LRESULT CALLBACK BoardProcedure(HWND board, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                           DWORD_PTR self);

    ScorletHost& host;
    Recorder recorder;
    BoardInput input{recorder};
    MoveField field{*this};
    SayList say{*this};
    // The entry that is open in the edit field, and how it was.
    struct Edited {
        ChosenLine Line;
        MoveEntry Entry;
    };
    std::optional<Edited> edited;
    Side menuList = White;
    ScorletPainter painter;
    ScorletLayout layout{};
    std::array<std::optional<CellLook>, SquareIndexes> shownCells{};
    UniqueCursor handPointBlue;
};
