#include "engine/arithmetic_error.h"

namespace quillon::engine {

void ThrowArithmeticError()
{
    throw ArithmeticError("overflow or invalid operation");
}

float StoreAsFloat(double value)
{
    return Checked(static_cast<float>(value));
}

} // namespace quillon::engine
