#pragma once

#include "base/Box.h"

#include <gtest/gtest.h>

#include <vector>

// Expects boxes to have a size, to lie in an area and to keep apart from each other.
inline void ExpectApartInside(const std::vector<Box>& boxes, const Box& area) {
    for (size_t i = 0; i < boxes.size(); ++i) {
        const Box& box = boxes[i];
        EXPECT_TRUE(box.Width > 0 && box.Height > 0) << "box " << i;
        EXPECT_TRUE(box.Left >= area.Left && box.Top >= area.Top && box.Right() <= area.Right() &&
                    box.Bottom() <= area.Bottom())
            << "box " << i;
        for (size_t j = 0; j < i; ++j) {
            const Box& other = boxes[j];
            EXPECT_TRUE(box.Right() <= other.Left || other.Right() <= box.Left || box.Bottom() <= other.Top ||
                        other.Bottom() <= box.Top)
                << i << " and " << j;
        }
    }
}
