#include "settings/SlotRecord.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::span<const uint8_t> Bytes(const std::string& text) {
    return {reinterpret_cast<const uint8_t*>(text.data()), text.size()};
}

SlotRecord Mixed() {
    SlotRecord record;
    record[0] = int32_t{-2};
    record[1] = 20.5;
    record[2] = true;
    record[998] = false;
    record[999] = int32_t{0x12345678};
    return record;
}

}  // namespace

TEST(SlotRecordTest, BytesAreLittleEndianTagsAndValues) {
    const std::string bytes = EncodeRecord(Mixed());
    EXPECT_EQ(bytes.size(), 2000u + 4 + 8 + 2 + 2 + 4);
    const std::string start("\x03\0\xFE\xFF\xFF\xFF\x05\0\0\0\0\0\0\x80\x34\x40\x0B\0\xFF\xFF\0\0", 22);
    EXPECT_EQ(bytes.substr(0, start.size()), start);
    EXPECT_EQ(bytes.substr(bytes.size() - 10), std::string("\x0B\0\0\0\x03\0\x78\x56\x34\x12", 10));

    const std::string withTail = bytes + "an older, longer record's tail";
    const DecodedRecord read = DecodeRecord(Bytes(withTail));
    EXPECT_FALSE(read.Error);
    EXPECT_EQ(read.Slots, Mixed());
}

TEST(SlotRecordTest, CutAtEveryLengthIsAnErrorAndKeepsTheSlotsBefore) {
    const std::string bytes = EncodeRecord(Mixed());
    for (size_t length = 0; length < bytes.size(); ++length) {
        const DecodedRecord read = DecodeRecord(Bytes(bytes).first(length));
        ASSERT_TRUE(read.Error) << length;
        ASSERT_EQ(read.Error->What, Damage::ShortFile) << length;
        const auto good = static_cast<size_t>(read.Error->Slot);
        SlotRecord wanted = Mixed();
        std::fill(wanted.begin() + static_cast<std::ptrdiff_t>(good), wanted.end(), SlotValue());
        ASSERT_EQ(read.Slots, wanted) << length;
    }
}
