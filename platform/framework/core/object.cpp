#include "fx/object.h"

#include "fx/archive.h"
#include "fx/dump_context.h"

#include <cstring>

namespace {

// Registration runs in static constructors of every module, in any order and on any thread that loads a DLL.
SRWLOCK g_classLock = SRWLOCK_INIT;
CRuntimeClass* g_firstClass = nullptr;

CRuntimeClass* PASCAL NoBaseClass() { return nullptr; }

} // namespace

constinit CRuntimeClass CObject::classCObject = {"CObject",    sizeof(CObject), 0xFFFF, nullptr,
                                                 &NoBaseClass, nullptr,         nullptr};
static AFX_CLASSINIT registration_of_CObject(&CObject::classCObject);

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) noexcept : m_class(pNewClass) {
    m_class->m_pBaseClass = m_class->m_pfnGetBaseClass();
    ::AcquireSRWLockExclusive(&g_classLock);
    m_class->m_pNextClass = g_firstClass;
    g_firstClass = m_class;
    ::ReleaseSRWLockExclusive(&g_classLock);
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass, UINT nSchema) noexcept : AFX_CLASSINIT(pNewClass) {
    m_class->m_wSchema = nSchema;
}

AFX_CLASSINIT::~AFX_CLASSINIT() {
    ::AcquireSRWLockExclusive(&g_classLock);
    for (CRuntimeClass** link = &g_firstClass; *link != nullptr; link = &(*link)->m_pNextClass) {
        if (*link == m_class) {
            *link = m_class->m_pNextClass;
            break;
        }
    }
    ::ReleaseSRWLockExclusive(&g_classLock);
}

void AFXAPI AfxDoForAllClasses(void(AFX_CDECL* pfn)(const CRuntimeClass* pClass, void* pContext), void* pContext) {
    ::AcquireSRWLockShared(&g_classLock);
    CRuntimeClass* runtimeClass = g_firstClass;
    ::ReleaseSRWLockShared(&g_classLock);
    // Not under the lock: pfn may look classes up. New classes come in front and are not visited.
    for (; runtimeClass != nullptr; runtimeClass = runtimeClass->m_pNextClass) {
        pfn(runtimeClass, pContext);
    }
}

CObject* CRuntimeClass::CreateObject() {
    if (m_pfnCreateObject == nullptr) {
        TRACE("%s has no dynamic creation\n", m_lpszClassName);
        return nullptr;
    }
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (CMemoryException* exception) {
        exception->Delete();
        return nullptr;
    }
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCSTR lpszClassName) {
    CRuntimeClass* const runtimeClass = FromName(lpszClassName);
    return runtimeClass == nullptr ? nullptr : runtimeClass->CreateObject();
}

CObject* PASCAL CRuntimeClass::CreateObject(LPCWSTR lpszClassName) {
    CRuntimeClass* const runtimeClass = FromName(lpszClassName);
    return runtimeClass == nullptr ? nullptr : runtimeClass->CreateObject();
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName) {
    if (lpszClassName == nullptr) {
        return nullptr;
    }
    ::AcquireSRWLockShared(&g_classLock);
    CRuntimeClass* found = g_firstClass;
    while (found != nullptr && std::strcmp(found->m_lpszClassName, lpszClassName) != 0) {
        found = found->m_pNextClass;
    }
    ::ReleaseSRWLockShared(&g_classLock);
    return found;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCWSTR lpszClassName) {
    return lpszClassName == nullptr ? nullptr : FromName(fx::NarrowText(lpszClassName).c_str());
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    ENSURE(pBaseClass != nullptr);
    const CRuntimeClass* runtimeClass = this;
    while (runtimeClass != nullptr && runtimeClass != pBaseClass) {
        runtimeClass = runtimeClass->m_pfnGetBaseClass();
    }
    return runtimeClass != nullptr;
}

void CRuntimeClass::Store(CArchive& ar) const {
    const WORD length = static_cast<WORD>(std::strlen(m_lpszClassName));
    ar << static_cast<WORD>(m_wSchema) << length;
    ar.Write(m_lpszClassName, length);
}

CRuntimeClass* PASCAL CRuntimeClass::Load(CArchive& ar, UINT* pwSchemaNum) {
    constexpr WORD longestName = 255;
    WORD schema = 0;
    WORD length = 0;
    ar >> schema >> length;
    char name[longestName + 1] = {};
    if (length > longestName || ar.Read(name, length) != length) {
        return nullptr;
    }
    if (pwSchemaNum != nullptr) {
        *pwSchemaNum = schema;
    }
    return FromName(name);
}

CRuntimeClass* PASCAL CObject::GetThisClass() { return &classCObject; }
CRuntimeClass* CObject::GetRuntimeClass() const { return &classCObject; }
BOOL CObject::IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }
BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const { return GetRuntimeClass()->IsDerivedFrom(pClass); }
void CObject::Serialize(CArchive&) {}
void CObject::AssertValid() const {}

void CObject::Dump(CDumpContext& dc) const {
    dc << L"a " << GetRuntimeClass()->m_lpszClassName << L" at " << static_cast<const void*>(this) << L" ";
}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject != nullptr && pObject->IsKindOf(pClass) ? pObject : nullptr;
}

CObject* AFXAPI AfxStaticDownCast(CRuntimeClass* pClass, CObject* pObject) {
    ASSERT(pObject == nullptr || pObject->IsKindOf(pClass));
    static_cast<void>(pClass);
    return pObject;
}
