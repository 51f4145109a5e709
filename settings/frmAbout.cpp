#include "settings/frmAbout.h"

#include "platform/DialogSizes.h"
#include "platform/SystemError.h"
#include "platform/modResource.h"
#include "resources/resource.h"
#include "settings/VersionInformation.h"

#include <commctrl.h>

namespace {

constexpr std::array KnightNames{"WN", "BN", "BNR", "WNR"};

// The knights of both columns face the texts.
constexpr int Knight = 96, RightKnight = DialogSize::About.Width - 16 - Knight, FirstRow = 50, Row = 44;

constexpr DialogItem KnightAt(int index, int left, int top) {
    return {imgKnight + index, WC_STATICW, SS_OWNERDRAW, {left, top, Knight, Knight}};
}
constexpr DialogItem CaptionAt(int row, TextId text) {
    return {lblAboutCaption + row, WC_STATICW, SS_NOPREFIX | SS_RIGHT, {124, FirstRow + Row * row, 130, 36}, text,
            Look::QuietText};
}
constexpr DialogItem ValueAt(int row, Look::TypeStyle type = Look::Text) {
    // The larger type reaches further up from the line that it shares with its caption.
    const int up = type.Height - Look::Text.Height;
    return {lblAboutValue + row, WC_STATICW, SS_NOPREFIX, {266, FirstRow + Row * row - up, 338, 36},
            std::nullopt,        type};
}

constexpr std::array AboutItems{
    KnightAt(2, 16, 20),
    KnightAt(3, 16, 134),
    CaptionAt(0, TextId::CopyrightNotice),
    ValueAt(0),
    CaptionAt(1, TextId::ProgramName),
    ValueAt(1, Look::Value),
    CaptionAt(2, TextId::Version),
    ValueAt(2),
    CaptionAt(3, TextId::LegalTrademarks),
    ValueAt(3),
    KnightAt(0, RightKnight, 20),
    KnightAt(1, RightKnight, 134),
};

}  // namespace

void frmAbout::Open(HWND owner) {
    Create(owner, L"frmAbout", TextId::ProductTitle, L"AAATORVANIX", DialogSize::About, AboutItems);
    const VersionInformation version = ReadVersionInformation(language);
    SetText(lblAboutValue, version.Comments);
    SetText(lblAboutValue + 1, version.ProductName);
    SetText(lblAboutValue + 2, version.Version);
    SetText(lblAboutValue + 3, version.LegalCopyright);
    for (size_t i = 0; i < knights.size(); ++i) {
        SetText(imgKnight + static_cast<int>(i), captions(TextId::PromotionKnight));
        knights[i] = Picture(*modResource::LoadResourcePicture(KnightNames[i]));
    }
}

LRESULT frmAbout::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_LBUTTONUP:
        case WM_RBUTTONUP: Close(); return 0;
        case WM_COMMAND:
            // Enter or Esc: no control of the box sends another command.
            Close();
            return 0;
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            FillRect(item.hDC, &item.rcItem, Background());
            knights[item.CtlID - imgKnight].Draw(item.hDC, 0, 0, static_cast<int>(item.rcItem.right));
            return TRUE;
        }
        default: return Dialog::Handle(message, wParam, lParam);
    }
}
