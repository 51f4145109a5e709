#pragma once

#include "platform/Dialog.h"
#include "platform/FilteredEdit.h"
#include "platform/ToolTips.h"
#include "resources/resource.h"
#include "settings/SettingsFile.h"
#include "settings/SetupRules.h"
#include "settings/TimeControls.h"
#include "settings/TypedTime.h"

#include <array>
#include <functional>
#include <optional>

// A time's caption with what it is measured in, and its scroll bars, one for each side, with the labels of their
// values.
struct TimeBars {
    int Caption, Measure, Bar, Value;
    TimeScale Scale;
    int32_t Unit;  // seconds
    std::array<int32_t, 2> TimeControl::*Time;
};

// The setup dialog. It works on a draft: OK saves and takes it, all else leaves the settings as they are, but for the
// language, which counts as soon as it is chosen.
class frmSetup : public Dialog {
  public:
    // `file` and `settings` must outlive the dialog. `openHelp` opens the help page of the settings over a window.
    frmSetup(const Surroundings& around, const SettingsFile& file, Settings& settings,
             std::function<void(HWND)> openHelp);

    // Throws SystemError.
    void Open(HWND owner);

    // Whether the settings have been saved and changed.
    bool Accepted() const { return accepted; }

  private:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    int DefaultButton() const override;

    std::wstring SpokenName(int id) const override;

    void FillLists();
    void FillTimeControls();
    void SetToolTips();

    // Show the draft in the controls.
    void ShowDraft();
    void ShowClockType();
    void ShowTimeControl();
    void ShowTimeRow(const TimeBars& bars, bool has);
    void ShowTime(const TimeBars& bars, Side side);
    std::wstring CaptionOf(const TimeBars& bars) const;

    void OnCommand(int id, int notification);
    void OnListNotification(int id, int notification);
    void OnChoice(int list, int position);
    void OnScroll(int bar, int request);
    void SetTime(const TimeBars& bars, Side side, int32_t value);
    void OnCharacter(int bar, wchar_t character);
    bool OnWheel(short delta, POINT screenPoint);
    void ChooseTimeControl(int position);
    void OnKeepAs();
    void OnRemoveTimes();
    void ChangeTimeControls(const std::function<void()>& change);
    void OnOk();

    void AddEntry(int list, const std::wstring& text) const;
    int PositionOf(int list) const;
    std::wstring TakeName(Side side, const std::wstring& text);  // what the field then shall hold

    static LRESULT CALLBACK BarProcedure(HWND bar, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                         DWORD_PTR form);
    static LRESULT CALLBACK ListProcedure(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                          DWORD_PTR form);

    const SettingsFile& file;
    Settings& settings;
    Settings draft;  // with times that its type lacks, see WithoutWhatTypeLacks
    TimeControls timeControls;
    std::optional<size_t> chosenTimes;  // of the time controls
    int32_t unlistedMoves = 0;          // a move amount that the list does not reach
    std::function<void(HWND)> openHelp;
    ToolTips toolTips{*this};
    std::array<FilteredEdit, 2> names{
        FilteredEdit(*this, txtName, [this](const std::wstring& text) { return TakeName(White, text); }),
        FilteredEdit(*this, txtName + 1, [this](const std::wstring& text) { return TakeName(Black, text); })};
    TypedTime typed;    // on the bar that has the focus
    int wheelRest = 0;  // of a notch
    bool accepted = false;
};
