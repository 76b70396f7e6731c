// Division for decisions: int32, defined for every input, because divisors come from a file that users edit.
#pragma once

// Truncates toward zero. A divisor of 0 gives 0.
constexpr int Quotient(int dividend, int divisor) {
    if (divisor == 0)
        return 0;
    return divisor == -1 ? 0 - dividend : dividend / divisor; // INT_MIN / -1 would trap
}

// Takes the sign of the dividend. A divisor of 0 gives 0.
constexpr int Remainder(int dividend, int divisor) {
    return divisor == 0 || divisor == -1 ? 0 : dividend % divisor;
}

// value * factor / divisor: multiplied first, wrapping at 32 bits, then divided once.
constexpr int Scaled(int value, int factor, int divisor) {
    return Quotient(value * factor, divisor);
}
