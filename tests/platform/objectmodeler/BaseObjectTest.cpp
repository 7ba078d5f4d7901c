#include "Matchers.h"
#include "TestComponents.h"

#include <array>
#include <cstring>
#include <thread>

namespace velkor::objectmodeler::test {

namespace {

/// The place of an operation in its class's virtual table; none for one that is not virtual.
template <typename Operation>
std::size_t slotOf(Operation operation) {
    std::size_t word = 0;
    std::memcpy(&word, &operation, sizeof word);
    return word % 2 == 1 ? (word - 1) / sizeof(void*) : std::size_t(-1);
}

using Base = QORBaseUnknown;
using QueryById = HRESULT (Base::*)(const IID&, void**);
using QueryByName = HRESULT (Base::*)(const char*, void**);

/// References to an object, as it counts them.
unsigned long references(QORBaseUnknown& object) {
    object.AddRef();
    return object.Release();
}

class BaseObject : public testing::Test {
protected:
    void TearDown() override { EXPECT_EQ(Alive::count, 0); }
};
using SmartPointer = BaseObject;

} // namespace

TEST_F(BaseObject, OperationsStandInTheOrderOfTheContract) {
    // The destructor has 8 and 9: one that only destroys, one that gives the storage back as well.
    EXPECT_THAT(
        (std::array{slotOf<QueryById>(&Base::QueryInterface), slotOf(&Base::AddRef), slotOf(&Base::Release),
                    slotOf(&Base::GetTypeInfoCount), slotOf(&Base::GetTypeInfo), slotOf(&Base::GetIDsOfNames),
                    slotOf(&Base::Invoke), slotOf<QueryByName>(&Base::QueryInterface), slotOf(&Base::GetMetaObject),
                    slotOf(&Base::IsA), slotOf(&Base::IsAKindOf), slotOf(&Base::GetImpl), slotOf(&Base::IsNull),
                    slotOf(&Base::IsEqual), slotOf(&Base::ChangeComponentState), slotOf(&QORITestGreeting::greet)}),
        ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 10, 11, 12, 13, 14, 15, 16, 17));
}

TEST_F(BaseObject, GoesWithItsLastReferenceAndIsEqualToItselfAlone) {
    auto* object = new TestPlain;
    EXPECT_EQ(object->AddRef(), 2U);
    {
        TestPlain copy(*object);
        EXPECT_EQ(references(copy), 1U) << "a copy has references of its own";
        *object = copy;
        EXPECT_EQ(object->IsEqual(&copy), 0);
    }
    EXPECT_EQ(object->GetImpl(), object);
    EXPECT_EQ(object->IsEqual(object), 1);
    EXPECT_EQ(object->IsEqual(nullptr), 0);
    EXPECT_EQ(object->IsNull(), 0);
    EXPECT_EQ(object->ChangeComponentState(ComponentState::Created, ComponentState::Removed, nullptr), S_OK);
    EXPECT_EQ(object->Release(), 1U);
    EXPECT_EQ(Alive::count, 1);
    EXPECT_EQ(object->Release(), 0U);
}

TEST_F(BaseObject, AnswersForEveryClassItIsByIdentifierAndByName) {
    QORETestGreeting object;
    void* interface = nullptr;
    for (const QORMetaClass* own = object.GetMetaObject(); own != nullptr; own = own->GetParent()) {
        for (const bool byName : {false, true}) {
            ASSERT_EQ(byName ? object.QueryInterface(own->GetClassName(), &interface)
                             : object.QueryInterface(own->GetClassId(), &interface),
                      S_OK)
                << own->GetClassName();
            EXPECT_EQ(std::exchange(interface, nullptr), &object);
            EXPECT_EQ(object.Release(), 1U) << "the answer had a reference";
        }
    }
    EXPECT_EQ(object.QueryInterface(GreetingId, nullptr), E_INVALIDARG);
    EXPECT_EQ(object.QueryInterface("QORITestGreeting", nullptr), E_INVALIDARG);
    EXPECT_EQ(object.QueryInterface(static_cast<const char*>(nullptr), &interface), E_INVALIDARG);
    interface = &object;
    EXPECT_EQ(object.QueryInterface("qoritestgreeting", &interface), E_NOINTERFACE);
    EXPECT_EQ(std::exchange(interface, &object), nullptr);
    EXPECT_EQ(object.QueryInterface(CountingId, &interface), E_NOINTERFACE);
    EXPECT_EQ(interface, nullptr);
    EXPECT_EQ(references(object), 1U);
}

TEST_F(SmartPointer, RefusesToDereferenceNothing) {
    const QORBaseUnknown_var empty;
    const QORInterface_var<QORITestGreeting> typed(empty);
    EXPECT_TRUE(empty.IsNull() && typed.IsNull() && !empty && empty == typed);
    EXPECT_EQ(empty.CastTo(GreetingId), nullptr);
    EXPECT_THROW(empty->IsA(), QORNullVarError);
    EXPECT_THROW(typed->greet(1), QORNullVarError);
}

TEST_F(SmartPointer, HoldsExactlyOneReference) {
    auto* object = new TestPlain;
    auto pointer = QORBaseUnknown_var::adopt(object);
    EXPECT_EQ(references(*object), 1U) << "adopting takes the reference over";
    {
        QORBaseUnknown_var copy = pointer;
        const QORBaseUnknown_var another(object);
        const QORBaseUnknown_var moved = std::move(copy);
        EXPECT_EQ(references(*object), 3U);
        EXPECT_EQ(moved, another);
    }
    const auto& self = pointer;
    pointer = self;
    EXPECT_EQ(references(*object), 1U) << "after it was assigned to itself";
    pointer = object;
    EXPECT_EQ(references(*object), 1U) << "after its own object was assigned";

    QORListValQORBaseUnknown_var list;
    list.Append(pointer);
    pointer = QORBaseUnknown_var::adopt(new TestPlain);
    EXPECT_NE(list[1], pointer);
    list = {};
    EXPECT_EQ(Alive::count, 1) << "the list held the last reference";
}

TEST_F(SmartPointer, ThreadsMayShareAnObject) {
    std::vector<std::thread> threads;
    for (auto shared = QORBaseUnknown_var::adopt(new TestPlain); threads.size() < 4;) {
        threads.emplace_back([mine = shared] {
            for (int round = 0; round < 500; ++round) EXPECT_EQ(QORBaseUnknown_var(mine)->IsNull(), 0);
        });
    }
    for (std::thread& thread : threads) thread.join();
}

} // namespace velkor::objectmodeler::test
