#pragma once

#include "platform/Handles.h"

#include <windows.h>

#include <oaidl.h>

#include <array>
#include <span>
#include <string>
#include <vector>

// A VARIANT that clears itself.
class Variant {
  public:
    Variant() { VariantInit(&value); }
    explicit Variant(const std::wstring& text);
    explicit Variant(long number);
    explicit Variant(bool boolean);
    Variant(Variant&& other) noexcept : value(other.value) { VariantInit(&other.value); }
    Variant& operator=(Variant&& other) noexcept;
    ~Variant() { VariantClear(&value); }

    VARIANT* operator&() { return &value; }
    const VARIANT& Value() const { return value; }

    // The value that it holds, converted if that is possible; otherwise false, "" or 0.
    bool Boolean() const;
    std::wstring Text() const;
    DATE Date() const;
    // The object that it holds, null if it holds none.
    UniqueCom<IDispatch> Object() const;

  private:
    bool ConvertTo(VARTYPE type, Variant& converted) const;

    VARIANT value;
};

// Calls a method of an object, or reads a property, by its name. The status is the object's own failure code where it
// raised one.
HRESULT Invoke(IDispatch& object, const std::wstring& member, std::span<const Variant> arguments, Variant& result);

template <typename... Arguments>
HRESULT Call(IDispatch& object, const std::wstring& member, Variant& result, const Arguments&... arguments) {
    const std::array<Variant, sizeof...(Arguments)> variants{Variant(arguments)...};
    return Invoke(object, member, variants, result);
}

// The items of a collection object, in its own order.
HRESULT Items(IDispatch& collection, std::vector<UniqueCom<IDispatch>>& items);
