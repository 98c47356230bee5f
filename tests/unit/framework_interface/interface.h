#pragma once

// The words in which the documented interface is written down. Each of them names a member with its documented type, so
// that a member that is missing, or has another signature, is a compile error; the address is taken as well, so that
// one that is declared and not exported is a link error.
//
// INTERFACE_OF(CWnd) { ... } holds the public members of a class, PROTECTED_INTERFACE_OF(CWnd) { ... } the protected
// ones, which are named through a class derived from it.

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <type_traits>
#include <utility>

namespace interface_check {

template <typename Pointer>
void CheckMember(Pointer pointer, const char* name) {
    EXPECT_NE(pointer, nullptr) << name;
}

/// A pointer to a virtual function holds its place in the table plus one, where others hold an (even) address.
template <typename Pointer>
void CheckVirtual(Pointer pointer, const char* name) {
    struct Parts {
        std::uintptr_t place;
        std::intptr_t adjustment;
    };
    EXPECT_EQ(std::bit_cast<Parts>(pointer).place & 1, 1u) << name << " must be virtual";
}

/// How a result is compared when only its kind is documented: a reference into a list is as good as the value.
template <typename Result, typename Documented>
constexpr bool isAnswer = std::is_same_v<std::remove_cvref_t<Result>, std::remove_cvref_t<Documented>> ||
                          (std::is_pointer_v<Documented> && std::is_convertible_v<Result, Documented>);

/// The parameter of a function type: void(T) carries a type with commas through a macro.
template <typename Function>
struct Parameter;
template <typename T>
struct Parameter<void(T)> {
    using Type = T;
};
template <typename T>
constexpr bool isComplete = requires {
    sizeof(T);
};

} // namespace interface_check

#define INTERFACE_OF(Name)                                                                                             \
    namespace {                                                                                                        \
    struct Public##Name {                                                                                              \
        using Class = Name;                                                                                            \
        using Via = Name;                                                                                              \
        static void Check();                                                                                           \
    };                                                                                                                 \
    TEST(PublicInterface, Name) { Public##Name::Check(); }                                                             \
    }                                                                                                                  \
    void Public##Name::Check()
#define PROTECTED_INTERFACE_OF(Name)                                                                                   \
    namespace {                                                                                                        \
    struct Protected##Name : Name {                                                                                    \
        using Class = Name;                                                                                            \
        using Via = Protected##Name;                                                                                   \
        static void Check();                                                                                           \
    };                                                                                                                 \
    TEST(ProtectedInterface, Name) { Protected##Name::Check(); }                                                       \
    }                                                                                                                  \
    void Protected##Name::Check()

/// Class derives from Base.
#define BASE(Base) static_assert(std::is_base_of_v<Base, Class>)
/// A member function with its result, its parameters and its const.
#define MEMBER(Result, Name, ...)                                                                                      \
    interface_check::CheckMember(static_cast<Result(Class::*) __VA_ARGS__>(&Via::Name), #Name)
/// The same for a result that has a comma in it, which stands in brackets.
#define MEMBER_OF_TYPE(Result, Name, ...)                                                                              \
    interface_check::CheckMember(                                                                                      \
        static_cast<interface_check::Parameter<void Result>::Type(Class::*) __VA_ARGS__>(&Via::Name), #Name)
/// The same for a virtual function.
#define VIRTUAL(Result, Name, ...)                                                                                     \
    interface_check::CheckVirtual(static_cast<Result(Class::*) __VA_ARGS__>(&Via::Name), #Name)
#define STATIC(Result, Name, ...) interface_check::CheckMember(static_cast<Result(*) __VA_ARGS__>(&Via::Name), #Name)
/// The member can be called with these arguments alone, because the others have defaults.
#define CALL(Name, ...)                                                                                                \
    static_assert(                                                                                                     \
        std::is_invocable_v<decltype([](Via& object, auto&&... arguments)                                              \
                                         -> decltype(object.Name(std::forward<decltype(arguments)>(arguments)...)) {   \
                                return object.Name(std::forward<decltype(arguments)>(arguments)...);                   \
                            }),                                                                                        \
                            Via & __VA_OPT__(, ) __VA_ARGS__>)
#define DATA(Type, Name) static_assert(std::is_same_v<decltype(Via::Name), Type>)
#define STATIC_DATA(Type, Name) interface_check::CheckMember(static_cast<Type*>(&Via::Name), #Name)
/// A public constructor with these parameters.
#define MADE_FROM(...) static_assert(std::is_constructible_v<Class __VA_OPT__(, ) __VA_ARGS__>)
/// A member that is documented with neither type nor parameters.
#define NAMED(Name) interface_check::CheckMember(&Via::Name, #Name)
/// A call with these arguments answers Type, or a reference to one: where the list classes share one implementation.
#define ANSWERS(Type, Name, ...)                                                                                       \
    static_assert(interface_check::isAnswer<                                                                           \
                  std::invoke_result_t<decltype([](auto& object, auto&&... arguments) -> decltype(auto) {              \
                                           return object.Name(std::forward<decltype(arguments)>(arguments)...);        \
                                       }),                                                                             \
                                       Class & __VA_OPT__(, ) __VA_ARGS__>,                                            \
                  Type>)
