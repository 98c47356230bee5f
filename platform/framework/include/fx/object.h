#pragma once

// CObject, the root of the framework's classes, and run-time class information.

#include "fx/base.h"
#include "fx/diagnostics.h"

#include <cstddef>
#include <new>

/// Describes one class: its name, size, base and, for DYNCREATE classes, how to make an object. Each lives as long as
/// the module that implements the class and is found by name while that module is loaded.
struct FRAMEWORK_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema; ///< 0xFFFF: the class cannot be serialised
    CObject*(PASCAL* m_pfnCreateObject)();
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();
    CRuntimeClass* m_pBaseClass; ///< set when the class is registered
    CRuntimeClass* m_pNextClass; ///< the process's class list

    /// Null when the class is not DYNCREATE or memory is out. The caller owns the object.
    CObject* CreateObject();
    /// Null also when no loaded module has a class of that name.
    static CObject* PASCAL CreateObject(LPCSTR lpszClassName);
    static CObject* PASCAL CreateObject(LPCWSTR lpszClassName);
    /// Case-sensitive; null when there is none.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    static CRuntimeClass* PASCAL FromName(LPCWSTR lpszClassName);
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;

    void Store(CArchive& ar) const;
    static CRuntimeClass* PASCAL Load(CArchive& ar, UINT* pwSchemaNum);
};

/// Puts a class on the process's class list while the module that implements it is loaded.
class FRAMEWORK_API AFX_CLASSINIT {
public:
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept;
    AFX_CLASSINIT(CRuntimeClass* pNewClass, UINT nSchema) noexcept;
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

private:
    CRuntimeClass* m_class;
};

/// Calls pfn for every class of every loaded module. pfn must not load or unload modules.
FRAMEWORK_API void AFXAPI AfxDoForAllClasses(void(AFX_CDECL* pfn)(const CRuntimeClass* pClass, void* pContext),
                                             void* pContext);

class FRAMEWORK_API AFX_NOVTABLE CObject {
public:
    static CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL GetThisClass();
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;

    static void* PASCAL operator new(std::size_t nSize) { return ::operator new(nSize); }
    static void* PASCAL operator new(std::size_t, void* p) noexcept { return p; }
    static void* PASCAL operator new(std::size_t nSize, LPCSTR, int) { return ::operator new(nSize); }
    static void* PASCAL operator new(std::size_t nSize, const std::nothrow_t& tag) noexcept {
        return ::operator new(nSize, tag);
    }
    static void PASCAL operator delete(void* p) { ::operator delete(p); }
    static void PASCAL operator delete(void*, void*) noexcept {}
    static void PASCAL operator delete(void* p, LPCSTR, int) { ::operator delete(p); }
    static void PASCAL operator delete(void* p, const std::nothrow_t&) noexcept { ::operator delete(p); }

    BOOL IsSerializable() const;
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    virtual void Serialize(CArchive& ar);
    virtual void AssertValid() const;
    virtual void Dump(CDumpContext& dc) const;

    CObject(const CObject& objectSrc) = delete;
    CObject& operator=(const CObject& objectSrc) = delete;

protected:
    CObject() = default;
};

/// Null when pObject is null or not of the class.
FRAMEWORK_API CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
inline const CObject* AfxDynamicDownCast(CRuntimeClass* pClass, const CObject* pObject) {
    return AfxDynamicDownCast(pClass, const_cast<CObject*>(pObject));
}
/// Checks the class in a checked build only.
FRAMEWORK_API CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject);
inline const CObject* AfxStaticDownCast(CRuntimeClass* pClass, const CObject* pObject) {
    return AfxStaticDownCast(pClass, const_cast<CObject*>(pObject));
}

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())
#define DYNAMIC_DOWNCAST(class_name, object) ((class_name*)AfxDynamicDownCast(RUNTIME_CLASS(class_name), object))
#define STATIC_DOWNCAST(class_name, object) ((class_name*)AfxStaticDownCast(RUNTIME_CLASS(class_name), object))

#define DECLARE_DYNAMIC(class_name)                                                                                    \
public:                                                                                                                \
    static CRuntimeClass class##class_name;                                                                            \
    static CRuntimeClass* PASCAL GetThisClass();                                                                       \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name)                                                                                  \
    DECLARE_DYNAMIC(class_name)                                                                                        \
    static CObject* PASCAL CreateObject();

#define DECLARE_SERIAL(class_name)                                                                                     \
    DECLARE_DYNCREATE(class_name)                                                                                      \
    friend CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb);

// The record itself needs no code to run before it is usable; the registration adds it to the list.
#define FX_IMPLEMENT_RUNTIME_CLASS(class_name, base_class_name, schema, create)                                        \
    static CRuntimeClass* PASCAL base_of_##class_name() { return base_class_name::GetThisClass(); }                    \
    constinit CRuntimeClass class_name::class##class_name = {                                                          \
        #class_name, sizeof(class_name), schema, create, &base_of_##class_name, nullptr, nullptr};                     \
    CRuntimeClass* PASCAL class_name::GetThisClass() { return &class_name::class##class_name; }                        \
    CRuntimeClass* class_name::GetRuntimeClass() const { return &class_name::class##class_name; }                      \
    static AFX_CLASSINIT registration_of_##class_name(RUNTIME_CLASS(class_name));

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    FX_IMPLEMENT_RUNTIME_CLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    CObject* PASCAL class_name::CreateObject() { return new class_name; }                                              \
    FX_IMPLEMENT_RUNTIME_CLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                                                         \
    CObject* PASCAL class_name::CreateObject() { return new class_name; }                                              \
    FX_IMPLEMENT_RUNTIME_CLASS(class_name, base_class_name, (wSchema), &class_name::CreateObject)                      \
    CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb) {                                                      \
        pOb = (class_name*)ar.ReadObject(RUNTIME_CLASS(class_name));                                                   \
        return ar;                                                                                                     \
    }
/// Schema number flag: the class reads older schemas itself (CArchive::GetObjectSchema).
#define VERSIONABLE_SCHEMA (0x80000000)
