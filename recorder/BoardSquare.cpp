#include "recorder/BoardSquare.h"

#include "platform/Colours.h"
#include "platform/Look.h"
#include "platform/Painting.h"

namespace {

constexpr Colour Own(uint32_t redGreenBlue) { return {ColourOf(redGreenBlue), COLOR_WINDOW}; }

constexpr Colour LightSquare = Own(Look::LightSquare), DarkSquare = Own(Look::DarkSquare);
constexpr Colour LightLast = Own(Look::LightLast), DarkLast = Own(Look::DarkLast);

}  // namespace

void DrawSquare(HDC dc, const RECT& area, bool light, bool ofLastMove) {
    if (ofLastMove)
        Fill(dc, area, light ? LightLast : DarkLast);
    else
        Fill(dc, area, light ? LightSquare : DarkSquare);
    if (light || !HighContrast()) return;
    const UniqueBrush brush(CreateHatchBrush(HS_BDIAGONAL, GetSysColor(COLOR_WINDOWTEXT)));
    FillRect(dc, &area, brush.get());
}
