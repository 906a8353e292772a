#pragma once

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace quillon::support {

/// Names a parametrised row after its member "name": blanks and signs become "_".
struct RowName
{
    template <class Row>
    std::string operator()(const ::testing::TestParamInfo<Row>& info) const
    {
        std::string name = info.param.name;
        for (char& character : name) {
            if (std::isalnum(static_cast<unsigned char>(character)) == 0) {
                character = '_';
            }
        }
        return name;
    }
};

} // namespace quillon::support
