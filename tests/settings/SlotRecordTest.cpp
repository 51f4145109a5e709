#include "settings/SlotRecord.h"

#include <gtest/gtest.h>

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

    SlotRecord read;
    EXPECT_FALSE(DecodeRecord(Bytes(bytes + "an older, longer record's tail"), read));
    EXPECT_EQ(read, Mixed());
}

TEST(SlotRecordTest, CutAtEveryLengthIsAnErrorThatChangesNothing) {
    const std::string bytes = EncodeRecord(Mixed());
    for (size_t length = 0; length < bytes.size(); ++length) {
        SlotRecord read;
        read[5] = int32_t{42};
        const auto error = DecodeRecord(Bytes(bytes.substr(0, length)), read);
        ASSERT_TRUE(error) << length;
        ASSERT_EQ(error->rule, RecordError::Rule::ShortFile) << length;
        ASSERT_EQ(read[5], SlotValue(int32_t{42})) << length;
    }
}

TEST(SlotRecordTest, UnknownTagIsNamedWithItsSlot) {
    std::string bytes = EncodeRecord(Mixed());
    bytes[22] = 8;  // the tag of slot 4
    SlotRecord read;
    const auto error = DecodeRecord(Bytes(bytes), read);
    ASSERT_TRUE(error);
    EXPECT_EQ(error->rule, RecordError::Rule::UnknownTag);
    EXPECT_EQ(error->slot, 4);
}
