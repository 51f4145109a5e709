#include "texts/TextIds.h"

Language LanguageOfSystem(uint16_t identifier) {
    // The rest tells countries apart.
    switch (identifier & 0x3FF) {
        case 0x0C: return French;
        case 0x1F: return Turkish;
        default: return English;
    }
}

TextId OrdinalRow(int32_t number, int32_t language) {
    if (language == French) return number == 1 ? TextId::OrdinalSt : TextId::OrdinalTh;
    const int32_t tens = number / 10 % 10;
    if (tens == 1) return TextId::OrdinalTh;
    switch (number % 10) {
        case 1: return TextId::OrdinalSt;
        case 2: return TextId::OrdinalNd;
        case 3: return TextId::OrdinalRd;
        default: return TextId::OrdinalTh;
    }
}

TextId CountRow(TextId one, int32_t number, int32_t language) {
    const bool singular = number == 1 || (number == 0 && language == French);
    return singular ? one : RowAfter(one, 1);
}
