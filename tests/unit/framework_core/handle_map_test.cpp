#include "fx/handle_map.h"

#include <gtest/gtest.h>

class CHandled : public CObject {
    DECLARE_DYNCREATE(CHandled)
public:
    ~CHandled() override { s_destroyedWithHandle += m_handle != nullptr; }
    HANDLE m_handle = nullptr;
    static inline int s_destroyedWithHandle = 0;
};
class CHandledSpecial : public CHandled {
    DECLARE_DYNCREATE(CHandledSpecial)
};
IMPLEMENT_DYNCREATE(CHandled, CObject)
IMPLEMENT_DYNCREATE(CHandledSpecial, CHandled)

namespace {

using Map = CHandleMap<CHandled, HANDLE>;

class HandleMap : public testing::Test {
protected:
    static std::unique_ptr<CHandled> Make(HANDLE handle, CRuntimeClass* kind) {
        std::unique_ptr<CHandled> object(static_cast<CHandled*>(kind->CreateObject()));
        object->m_handle = handle;
        return object;
    }
    static void Release(CHandled& object) { object.m_handle = nullptr; }

    Map m_map{&Make, &Release};
    const HANDLE m_handle = reinterpret_cast<HANDLE>(0x1234);
};

// Windows made late in a long run of the system have such numbers, and functions of the system disagree about them.
TEST_F(HandleMap, AHandleIsTheSameWithAndWithoutItsSign) {
    const HANDLE withSign = reinterpret_cast<HANDLE>(0xFFFFFFFF8001003C);
    const HANDLE withoutSign = reinterpret_cast<HANDLE>(0x000000008001003C);
    CHandled object;
    m_map.SetPermanent(withSign, &object);
    EXPECT_EQ(m_map.LookupPermanent(withoutSign), &object);
    EXPECT_EQ(m_map.FromHandle(withoutSign, RUNTIME_CLASS(CHandled)), &object);
    m_map.RemovePermanent(withoutSign, &object);
    EXPECT_EQ(m_map.LookupPermanent(withSign), nullptr);
    CHandled* const temporary = m_map.FromHandle(withoutSign, RUNTIME_CLASS(CHandled));
    EXPECT_EQ(m_map.LookupTemporary(withSign), temporary);
    EXPECT_EQ(m_map.TemporaryCount(), 1U);
}

TEST_F(HandleMap, AUnknownHandleGetsOneTemporaryObject) {
    CHandled* const object = m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled));
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(object->m_handle, m_handle);
    EXPECT_EQ(m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled)), object);
    EXPECT_EQ(m_map.LookupPermanent(m_handle), nullptr);
    EXPECT_EQ(m_map.FromHandle(nullptr, RUNTIME_CLASS(CHandled)), nullptr);
}

TEST_F(HandleMap, TemporariesGoWithoutTheirHandle) {
    CHandled::s_destroyedWithHandle = 0;
    m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled));
    EXPECT_EQ(m_map.TemporaryCount(), 1u);
    m_map.DeleteTemp();
    EXPECT_EQ(m_map.TemporaryCount(), 0u);
    EXPECT_EQ(CHandled::s_destroyedWithHandle, 0);
}

TEST_F(HandleMap, WhatARunningHandlerAskedForStaysWhileOthersGo) {
    const HANDLE inner = reinterpret_cast<HANDLE>(0x5678);
    CHandled* const held = m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled), 1);
    m_map.FromHandle(inner, RUNTIME_CLASS(CHandled), 2);
    m_map.DeleteReleasedTemp(1);
    EXPECT_EQ(m_map.LookupTemporary(m_handle), held);
    EXPECT_EQ(m_map.LookupTemporary(inner), nullptr) << "its handler has returned";
    m_map.DeleteReleasedTemp(0);
    EXPECT_EQ(m_map.TemporaryCount(), 0u) << "no handler runs any more";
}

TEST_F(HandleMap, AnOuterHandlerThatAsksLaterHoldsItToo) {
    CHandled* const object = m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled), 3);
    EXPECT_EQ(m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled), 1), object);
    EXPECT_EQ(m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled), 3), object);
    m_map.DeleteReleasedTemp(1);
    EXPECT_EQ(m_map.LookupTemporary(m_handle), object);
}

TEST_F(HandleMap, AStaleObjectThatARunningHandlerHoldsStaysToo) {
    CHandled* const plain = m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled), 1);
    m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandledSpecial), 2);
    m_map.DeleteReleasedTemp(1);
    EXPECT_EQ(m_map.TemporaryCount(), 1u);
    EXPECT_EQ(plain->m_handle, m_handle);
}

TEST_F(HandleMap, ThePermanentObjectComesFirst) {
    CHandled object;
    m_map.SetPermanent(m_handle, &object);
    EXPECT_EQ(m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled)), &object);
    EXPECT_EQ(m_map.TemporaryCount(), 0u);
    CHandled successor;
    m_map.SetPermanent(m_handle, &successor);
    m_map.RemovePermanent(m_handle, &object);
    EXPECT_EQ(m_map.LookupPermanent(m_handle), &successor);
}

TEST_F(HandleMap, AReusedHandleOfAnotherKindGetsANewObject) {
    CHandled* const plain = m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandled));
    CHandled* const special = m_map.FromHandle(m_handle, RUNTIME_CLASS(CHandledSpecial));
    EXPECT_NE(plain, special);
    EXPECT_TRUE(special->IsKindOf(RUNTIME_CLASS(CHandledSpecial)));
    EXPECT_EQ(plain->m_handle, m_handle) << "the first one lives until idle";
    EXPECT_EQ(m_map.TemporaryCount(), 2u);
}

} // namespace
