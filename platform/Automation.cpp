#include "platform/Automation.h"

#include <oleauto.h>

#include <utility>

Variant::Variant(const std::wstring& text) {
    VariantInit(&value);
    value.vt = VT_BSTR;
    value.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

Variant::Variant(long number) {
    VariantInit(&value);
    value.vt = VT_I4;
    value.lVal = number;
}

Variant::Variant(bool boolean) {
    VariantInit(&value);
    value.vt = VT_BOOL;
    value.boolVal = boolean ? VARIANT_TRUE : VARIANT_FALSE;
}

Variant& Variant::operator=(Variant&& other) noexcept {
    std::swap(value, other.value);
    return *this;
}

bool Variant::ConvertTo(VARTYPE type, Variant& converted) const {
    // The function only reads its source, though not every header declares it so.
    return SUCCEEDED(VariantChangeType(&converted.value, const_cast<VARIANT*>(&value), 0, type));
}

bool Variant::Boolean() const {
    Variant converted;
    return ConvertTo(VT_BOOL, converted) && converted.value.boolVal != VARIANT_FALSE;
}

std::wstring Variant::Text() const {
    Variant converted;
    if (!ConvertTo(VT_BSTR, converted)) return {};
    return std::wstring(converted.value.bstrVal, SysStringLen(converted.value.bstrVal));
}

DATE Variant::Date() const {
    Variant converted;
    return ConvertTo(VT_DATE, converted) ? converted.value.date : 0;
}

UniqueCom<IDispatch> Variant::Object() const {
    if (value.vt != VT_DISPATCH || !value.pdispVal) return nullptr;
    value.pdispVal->AddRef();
    return UniqueCom<IDispatch>(value.pdispVal);
}

HRESULT Invoke(IDispatch& object, const std::wstring& member, std::span<const Variant> arguments, Variant& result) {
    std::wstring name = member;
    LPOLESTR names = name.data();
    DISPID id;
    const HRESULT found = object.GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(found)) return found;

    // Arguments are passed in reverse order.
    std::vector<VARIANT> values;
    for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
        values.push_back(argument->Value());
    DISPPARAMS parameters{values.data(), nullptr, static_cast<UINT>(values.size()), 0};
    EXCEPINFO raised{};
    Variant returned;
    const HRESULT status = object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                         &parameters, &returned, &raised, nullptr);
    SysFreeString(raised.bstrSource);
    SysFreeString(raised.bstrDescription);
    SysFreeString(raised.bstrHelpFile);
    if (status == DISP_E_EXCEPTION && FAILED(raised.scode)) return raised.scode;
    result = std::move(returned);
    return status;
}

HRESULT Items(IDispatch& collection, std::vector<UniqueCom<IDispatch>>& items) {
    DISPPARAMS none{};
    Variant unknown;
    HRESULT status = collection.Invoke(DISPID_NEWENUM, IID_NULL, LOCALE_USER_DEFAULT,
                                       DISPATCH_METHOD | DISPATCH_PROPERTYGET, &none, &unknown, nullptr, nullptr);
    if (FAILED(status)) return status;
    if (unknown.Value().vt != VT_UNKNOWN && unknown.Value().vt != VT_DISPATCH) return DISP_E_TYPEMISMATCH;
    void* pointer = nullptr;
    status = unknown.Value().punkVal->QueryInterface(IID_IEnumVARIANT, &pointer);
    if (FAILED(status)) return status;
    const UniqueCom<IEnumVARIANT> enumerator(static_cast<IEnumVARIANT*>(pointer));
    for (;;) {
        Variant item;
        status = enumerator->Next(1, &item, nullptr);
        if (status != S_OK) return FAILED(status) ? status : S_OK;
        if (auto object = item.Object()) items.push_back(std::move(object));
    }
}
