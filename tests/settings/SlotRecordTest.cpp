#include "settings/SlotRecord.h"

#include "tests/settings/SettingsText.h"

#include <algorithm>

TEST(SlotRecordTest, BytesAreLittleEndianTagsAndValues) {
    SlotRecord mixed;
    mixed[0] = -2;
    mixed[1] = 20.5;
    mixed[2] = true;
    mixed[998] = false;
    mixed[999] = 0x12345678;
    const std::string bytes = EncodeRecord(mixed);
    EXPECT_EQ(bytes, std::string("\x03\0\xFE\xFF\xFF\xFF\x05\0\0\0\0\0\0\x80\x34\x40\x0B\0\xFF\xFF", 20) +
                         std::string(2 * 995, '\0') + std::string("\x0B\0\0\0\x03\0\x78\x56\x34\x12", 10));
    const std::string longer = bytes + "an older, longer record's tail";
    EXPECT_FALSE(DecodeRecord(Bytes(longer)).Error);
    EXPECT_EQ(DecodeRecord(Bytes(longer)).Slots, mixed);

    // Cut at any length it is an error, and the slots before the cut are kept.
    for (size_t length = 0; length < bytes.size(); ++length) {
        const DecodedRecord read = DecodeRecord(Bytes(bytes).first(length));
        ASSERT_TRUE(read.Error && read.Error->What == Damage::ShortFile) << length;
        SlotRecord wanted = mixed;
        std::fill(wanted.begin() + read.Error->Slot, wanted.end(), SlotValue());
        ASSERT_EQ(read.Slots, wanted) << length;
        ASSERT_LE(EncodeRecord(wanted).size() - 2 * static_cast<size_t>(SlotCount - read.Error->Slot), length);
    }
}
