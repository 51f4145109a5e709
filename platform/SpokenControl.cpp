#include "platform/SpokenControl.h"

#include "platform/Form.h"
#include "platform/Handles.h"

#include <oleacc.h>

#include <new>

namespace {

// IID_IAccessible itself is not used: an import library may define that name as a function.
const IID AccessibleId = __uuidof(IAccessible);

// The system's own accessible object of a control, except for its name and those of its parts. Screen readers may keep
// it for longer than the control exists, so the control is looked up at each question.
class NamedAccessible : public IAccessible {
  public:
    NamedAccessible(HWND control, UniqueCom<IAccessible> system) : control(control), system(std::move(system)) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        const bool own = iid == IID_IUnknown || iid == IID_IDispatch || iid == AccessibleId;
        // Other interfaces, for the control's window and the enumeration of its parts, are the system's.
        if (!own) return system->QueryInterface(iid, object);
        *object = static_cast<IAccessible*>(this);
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(InterlockedIncrement(&references)); }
    ULONG STDMETHODCALLTYPE Release() override {
        const LONG left = InterlockedDecrement(&references);
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

    HRESULT STDMETHODCALLTYPE get_accName(VARIANT part, BSTR* name) override {
        if (part.vt == VT_I4) {
            try {
                const std::wstring spoken = Form::SpokenNameOf(control, part.lVal);
                *name = spoken.empty() ? nullptr : SysAllocString(spoken.c_str());
            } catch (const std::exception&) {
                return E_OUTOFMEMORY;
            }
            if (*name) return S_OK;
        }
        return system->get_accName(part, name);
    }

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override { return system->GetTypeInfoCount(count); }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
        return system->GetTypeInfo(index, locale, info);
    }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override {
        return system->GetIDsOfNames(iid, names, count, locale, ids);
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID iid, LCID locale, WORD flags, DISPPARAMS* arguments,
                                     VARIANT* result, EXCEPINFO* raised, UINT* wrong) override {
        return system->Invoke(member, iid, locale, flags, arguments, result, raised, wrong);
    }
    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) override { return system->get_accParent(parent); }
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) override { return system->get_accChildCount(count); }
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT part, IDispatch** child) override {
        return system->get_accChild(part, child);
    }
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT part, BSTR* value) override {
        return system->get_accValue(part, value);
    }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT part, BSTR* text) override {
        return system->get_accDescription(part, text);
    }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT part, VARIANT* role) override {
        return system->get_accRole(part, role);
    }
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT part, VARIANT* state) override {
        return system->get_accState(part, state);
    }
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT part, BSTR* text) override { return system->get_accHelp(part, text); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT part, LONG* topic) override {
        return system->get_accHelpTopic(file, part, topic);
    }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT part, BSTR* keys) override {
        return system->get_accKeyboardShortcut(part, keys);
    }
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* part) override { return system->get_accFocus(part); }
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* parts) override { return system->get_accSelection(parts); }
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT part, BSTR* text) override {
        return system->get_accDefaultAction(part, text);
    }
    HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT part) override { return system->accSelect(flags, part); }
    HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT part) override {
        return system->accLocation(left, top, width, height, part);
    }
    HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT part, VARIANT* there) override {
        return system->accNavigate(direction, part, there);
    }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG left, LONG top, VARIANT* part) override {
        return system->accHitTest(left, top, part);
    }
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT part) override { return system->accDoDefaultAction(part); }
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT part, BSTR name) override { return system->put_accName(part, name); }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT part, BSTR value) override {
        return system->put_accValue(part, value);
    }

  private:
    virtual ~NamedAccessible() = default;

    HWND control;
    UniqueCom<IAccessible> system;
    LONG references = 1;
};

// The answer to WM_GETOBJECT; 0 leaves it to the system.
LRESULT AccessibleOf(HWND control, WPARAM wParam) {
    if (Form::SpokenNameOf(control).empty()) return 0;
    void* system = nullptr;
    if (FAILED(CreateStdAccessibleObject(control, OBJID_CLIENT, AccessibleId, &system))) return 0;
    const UniqueCom<IAccessible> named(
        new NamedAccessible(control, UniqueCom<IAccessible>(static_cast<IAccessible*>(system))));
    return LresultFromObject(AccessibleId, wParam, named.get());
}

LRESULT CALLBACK Procedure(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    // Systems differ in the upper half of the parameter.
    if (message == WM_GETOBJECT && static_cast<LONG>(lParam) == static_cast<LONG>(OBJID_CLIENT)) {
        try {
            if (const LRESULT answer = AccessibleOf(control, wParam)) return answer;
        } catch (const std::exception&) {
            // The system then gives its own answer.
        }
    }
    // The class of a control never changes, and the common controls would look up a subclass at each message.
    const auto own = reinterpret_cast<WNDPROC>(GetClassLongPtrW(control, GCLP_WNDPROC));
    return CallWindowProcW(own, control, message, wParam, lParam);
}

}  // namespace

void SpeakWithForm(HWND control) { SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)); }
