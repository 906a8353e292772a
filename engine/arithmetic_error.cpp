#include "engine/arithmetic_error.h"

#include <cmath>

namespace quillon::engine {

float Checked(float value)
{
    if (!std::isfinite(value)) {
        throw ArithmeticError("overflow or invalid operation");
    }
    return value;
}

float StoreAsFloat(double value)
{
    return Checked(static_cast<float>(value));
}

} // namespace quillon::engine
