#pragma once

#include <cmath>
#include <stdexcept>

namespace quillon::engine {

/// An overflow or an invalid operation: the result cannot be written as the number it should be.
class ArithmeticError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Out of line, so that what checks stays short. @throws ArithmeticError always.
[[noreturn]] void ThrowArithmeticError();

/// Passes a value on when it is finite.
/// @throws ArithmeticError when it is infinite or no number.
[[nodiscard]] inline float Checked(float value)
{
    if (!std::isfinite(value)) {
        ThrowArithmeticError();
    }
    return value;
}

/// Stores an intermediate result as the 32-bit value that it is kept as.
/// @throws ArithmeticError when it is no number or too large for that.
[[nodiscard]] float StoreAsFloat(double value);

} // namespace quillon::engine
