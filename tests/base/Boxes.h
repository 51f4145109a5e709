#pragma once

#include "base/Box.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Expects boxes to have a size, to lie in an area and to keep apart from each other. Says where they are, each as
// "left:top widthxheight".
inline std::string ExpectApartInside(const std::vector<Box>& boxes, const Box& area) {
    std::string text;
    for (size_t i = 0; i < boxes.size(); ++i) {
        const Box& box = boxes[i];
        EXPECT_TRUE(box.Width > 0 && box.Height > 0) << "box " << i;
        EXPECT_TRUE(box.Left >= area.Left && box.Top >= area.Top) << "box " << i;
        EXPECT_TRUE(box.Right() <= area.Right() && box.Bottom() <= area.Bottom()) << "box " << i;
        for (size_t j = 0; j < i; ++j) {
            const Box& other = boxes[j];
            EXPECT_TRUE(box.Right() <= other.Left || other.Right() <= box.Left || box.Bottom() <= other.Top ||
                        other.Bottom() <= box.Top)
                << i << " and " << j;
        }
        text += (i > 0 ? ", " : "") + std::to_string(box.Left) + ":" + std::to_string(box.Top) + " " +
                std::to_string(box.Width) + "x" + std::to_string(box.Height);
    }
    return text;
}
