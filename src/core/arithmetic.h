// int32 arithmetic that is defined for every input, because numbers come from a file that users edit and from
// other programs.
#pragma once

// Reduces a result computed in 64 bits to 32 bits; wraps on overflow.
constexpr int Wrap(long long number) {
    return static_cast<int>(number);
}

// Truncates toward zero. A divisor of 0 gives 0.
constexpr int Quotient(int dividend, int divisor) {
    return divisor == 0 ? 0 : Wrap(static_cast<long long>(dividend) / divisor);
}

// Has the sign of the dividend. A divisor of 0 gives 0.
constexpr int Remainder(int dividend, int divisor) {
    return divisor == 0 ? 0 : Wrap(static_cast<long long>(dividend) % divisor);
}

// value * factor / divisor: the product wraps at 32 bits, then is divided.
constexpr int Scale(int value, int factor, int divisor) {
    return Quotient(Wrap(static_cast<long long>(value) * factor), divisor);
}
