#pragma once

#include <cstdint>
#include <exception>

enum class Fault {
    Overflow,    // a sum or product that does not fit 32 signed bits
    OutOfRange,  // an index or a value outside its table
};

// What stops an operation in the middle. It carries no text of its own: the form that catches it shows the localised
// text of the fault.
class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(Fault fault) : fault(fault) {}
    Fault What() const { return fault; }
    const char* what() const noexcept override { return fault == Fault::Overflow ? "overflow" : "out of range"; }

  private:
    Fault fault;
};

// Overflow-tested 32-bit addition for times and counts. Throws RunTimeError(Fault::Overflow).
inline int32_t CheckedAdd(int32_t left, int32_t right) {
    int32_t sum;
    if (__builtin_add_overflow(left, right, &sum)) throw RunTimeError(Fault::Overflow);
    return sum;
}
