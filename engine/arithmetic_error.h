#pragma once

#include <stdexcept>

namespace quillon::engine {

/// An overflow or an invalid operation: the result cannot be written as the number it should be.
class ArithmeticError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Passes a value on when it is finite.
/// @throws ArithmeticError when it is infinite or no number.
[[nodiscard]] float Checked(float value);

} // namespace quillon::engine
