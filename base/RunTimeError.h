#pragma once

#include <cstdint>
#include <exception>

enum class Fault {
    Overflow,    // a sum or product that does not fit in 32 signed bits
    OutOfRange,  // an index or a value outside its table
};

// An error that stops an operation halfway. It carries no text of its own: the form that catches it shows the localised
// text of the fault.
class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(Fault fault) : fault(fault) {}
    Fault What() const { return fault; }
    const char* what() const noexcept override { return fault == Fault::Overflow ? "overflow" : "out of range"; }

  private:
    Fault fault;
};

// Addition of times and counts of 32 bits. Throws RunTimeError(Fault::Overflow).
inline int32_t CheckedAdd(int32_t left, int32_t right) {
    int32_t sum;
    if (__builtin_add_overflow(left, right, &sum)) throw RunTimeError(Fault::Overflow);
    return sum;
}
