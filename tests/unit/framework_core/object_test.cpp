#include "afxcoll.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <set>
#include <string>

class CTestBase : public CObject {
    DECLARE_DYNAMIC(CTestBase)
};
class CTestDerived : public CTestBase {
    DECLARE_DYNCREATE(CTestDerived)
public:
    int m_value = 5;

protected:
    CTestDerived() = default;
};
class CTestSibling : public CTestBase {
    DECLARE_DYNCREATE(CTestSibling)
};
IMPLEMENT_DYNAMIC(CTestBase, CObject)
IMPLEMENT_DYNCREATE(CTestDerived, CTestBase)
IMPLEMENT_DYNCREATE(CTestSibling, CTestBase)

namespace {

// Used while static objects are still being made: the record must not need its own constructor.
const bool g_wasUsableEarly = RUNTIME_CLASS(CTestDerived)->IsDerivedFrom(RUNTIME_CLASS(CObject)) &&
                              std::strcmp(RUNTIME_CLASS(CTestSibling)->m_lpszClassName, "CTestSibling") == 0;

TEST(RuntimeClass, IsUsableDuringStaticInitialisation) { EXPECT_TRUE(g_wasUsableEarly); }

TEST(RuntimeClass, KnowsNameSizeAndBase) {
    const CRuntimeClass* const derived = RUNTIME_CLASS(CTestDerived);
    EXPECT_STREQ(derived->m_lpszClassName, "CTestDerived");
    EXPECT_EQ(derived->m_nObjectSize, static_cast<int>(sizeof(CTestDerived)));
    EXPECT_EQ(derived->m_pBaseClass, RUNTIME_CLASS(CTestBase));
    EXPECT_EQ(derived->m_pfnGetBaseClass(), RUNTIME_CLASS(CTestBase));
    EXPECT_EQ(derived->m_wSchema, 0xFFFFu);
    EXPECT_TRUE(derived->IsDerivedFrom(derived));
    EXPECT_FALSE(RUNTIME_CLASS(CTestBase)->IsDerivedFrom(derived));
}

TEST(RuntimeClass, IsFoundByNameInEveryModule) {
    EXPECT_EQ(CRuntimeClass::FromName("CTestDerived"), RUNTIME_CLASS(CTestDerived));
    EXPECT_EQ(CRuntimeClass::FromName(L"CTestDerived"), RUNTIME_CLASS(CTestDerived));
    EXPECT_EQ(CRuntimeClass::FromName("CObList"), RUNTIME_CLASS(CObList));
    EXPECT_EQ(CRuntimeClass::FromName("ctestderived"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CNoSuchClass"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(static_cast<LPCSTR>(nullptr)), nullptr);
}

TEST(RuntimeClass, CreatesDynamicClassesAlone) {
    const std::unique_ptr<CObject> object(CRuntimeClass::CreateObject("CTestDerived"));
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(CTestDerived, object.get())->m_value, 5);
    EXPECT_EQ(RUNTIME_CLASS(CTestBase)->CreateObject(), nullptr);
    EXPECT_EQ(CRuntimeClass::CreateObject(L"CNoSuchClass"), nullptr);
}

TEST(RuntimeClass, EachClassIsListedOnce) {
    static std::multiset<std::string> names;
    names.clear();
    AfxDoForAllClasses([](const CRuntimeClass* runtimeClass, void*) { names.insert(runtimeClass->m_lpszClassName); },
                       nullptr);
    EXPECT_EQ(names.count("CTestSibling"), 1u);
    EXPECT_EQ(names.count("CObject"), 1u);
    EXPECT_EQ(names.count("CStringArray"), 1u);
}

TEST(RuntimeClass, LeavesTheListWithItsModule) {
    static CRuntimeClass passing = {"CPassingClass", 1,      0xFFFF, nullptr, [] { return RUNTIME_CLASS(CObject); },
                                    nullptr,         nullptr};
    {
        const AFX_CLASSINIT registration(&passing);
        EXPECT_EQ(CRuntimeClass::FromName("CPassingClass"), &passing);
    }
    EXPECT_EQ(CRuntimeClass::FromName("CPassingClass"), nullptr);
}

TEST(RuntimeClass, WrongDynamicDowncastGivesNull) {
    CTestSibling sibling;
    CObject* const object = &sibling;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestSibling, object), &sibling);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestBase, object), &sibling);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestDerived, object), nullptr);
    CObject* const none = nullptr;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CTestBase, none), nullptr);
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CTestBase)));
    EXPECT_FALSE(object->IsKindOf(RUNTIME_CLASS(CTestDerived)));
    EXPECT_FALSE(object->IsSerializable());
}

int g_failedChecks = 0;
bool CountFailedCheck(const char*, int, const char* text) {
    g_failedChecks += std::strstr(text, "expected to fail") != nullptr || text[0] != 0;
    return true;
}

TEST(Checks, AFailedAssertReachesTheHandlerAndVerifyAlwaysEvaluates) {
    const AFX_ASSERT_HANDLER before = AfxSetAssertHandler(&CountFailedCheck);
    g_failedChecks = 0;
    ASSERT(false && "expected to fail");
    int evaluated = 0;
    VERIFY(++evaluated == 1);
    [[maybe_unused]] const CObject* const none = nullptr;
    ASSERT_VALID(none);
    AfxSetAssertHandler(before);
    EXPECT_EQ(evaluated, 1);
    EXPECT_EQ(g_failedChecks, FX_CHECKED_BUILD ? 2 : 0);
}

TEST(Checks, EnsureThrowsInEveryBuild) {
    const AFX_ASSERT_HANDLER before = AfxSetAssertHandler(&CountFailedCheck);
    const auto fail = [] { ENSURE(1 == 2); };
    EXPECT_THROW(fail(), CInvalidArgException*);
    AfxSetAssertHandler(before);
}

TEST(Checks, AddressesAreProbed) {
    int value = 0;
    EXPECT_TRUE(AfxIsValidAddress(&value, sizeof(value)));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_FALSE(AfxIsValidAddress(reinterpret_cast<void*>(8), 8));
    EXPECT_TRUE(AfxIsValidAddress("constant", 9, FALSE));
    EXPECT_TRUE(AfxIsValidString(L"text"));
    EXPECT_FALSE(AfxIsValidString(reinterpret_cast<LPCSTR>(16)));
}

} // namespace
