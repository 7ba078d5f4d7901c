#include "QORHashTabCustoMappingElement.h"

#include <utility>

using Element = CustoMappingElement;
using Table = QORHashTabCustoMappingElement;

namespace {

Element* element(void* entry) {
    return static_cast<Element*>(entry);
}

/// Hands an entry that was met to a caller who wants it.
template <class Call>
int apply(const QORHashTable& table, Call call, Element* start, Element** last, int* result) {
    void* met = last != nullptr ? *last : nullptr;
    const int calls = table.applyToEach([&](void* entry) { return call(element(entry)); }, start, &met, result);
    if (last != nullptr) *last = element(met);
    return calls;
}

} // namespace

Table::QORHashTabCustoMappingElement(HashFunction iHash, CompareFunction iCompare, int iDimension)
    : _table(iHash, iCompare, iDimension) {}
Table::QORHashTabCustoMappingElement(HashFunction iHash, CompareFunction iCompare, int iDimension, void* iExtra)
    : _table(iHash, iCompare, iDimension, iExtra) {}
Table::QORHashTabCustoMappingElement(const Table& iOther) = default;
Table::QORHashTabCustoMappingElement(Table&& iOther) noexcept = default;
Table& Table::operator=(const Table& iOther) = default;
Table& Table::operator=(Table&& iOther) noexcept = default;
Table::~QORHashTabCustoMappingElement() = default;

bool Table::operator==(const Table& iOther) const {
    return _table == iOther._table;
}
bool Table::operator!=(const Table& iOther) const {
    return !(_table == iOther._table);
}
Element* Table::operator[](const QORHashCodeIter& iIterator) const {
    return element(_table[iIterator]);
}

void Table::ApplyDelete() {
    int bucket = 1, place = 0;
    while (Element* next = Next(bucket, place)) delete next;
    RemoveAll();
}

int Table::ApplyGlobalFunct(int (*iFunction)(Element*), Element* iStart, Element** oLast, int* oResult) const {
    return apply(_table, iFunction, iStart, oLast, oResult);
}
int Table::ApplyMemberFunct(int (Element::*iFunction)(), Element* iStart, Element** oLast, int* oResult) const {
    return apply(
        _table, [&](Element* each) { return (each->*iFunction)(); }, iStart, oLast, oResult);
}
int Table::ApplyMemberFunctConst(int (Element::*iFunction)() const, Element* iStart, Element** oLast,
                                 int* oResult) const {
    return apply(
        _table, [&](Element* each) { return (each->*iFunction)(); }, iStart, oLast, oResult);
}

int Table::Collisions() const {
    return _table.Collisions();
}
int Table::Dimension() const {
    return _table.Dimension();
}
int Table::Size() const {
    return _table.Size();
}
int Table::Unused() const {
    return _table.Unused();
}
QORHashCodeIter Table::CreateIterator() const {
    return _table.CreateIterator();
}

Element* Table::Insert(Element* iElement) {
    return element(_table.Insert(iElement));
}
Element* Table::Locate(Element* iElement) const {
    return element(_table.Locate(iElement));
}
int Table::LocatePosition(Element* iElement, int& oBucket, int& oPlace) const {
    return _table.LocatePosition(iElement, oBucket, oPlace);
}
Element* Table::KeyLocate(int iKey) const {
    return element(_table.KeyLocate(static_cast<unsigned int>(iKey)));
}
int Table::KeyLocatePosition(int iKey, int& oBucket, int& oPlace) const {
    return _table.KeyLocatePosition(static_cast<unsigned int>(iKey), oBucket, oPlace);
}
Element* Table::Retrieve(int iBucket, int iPlace) const {
    return element(_table.Retrieve(iBucket, iPlace));
}
Element* Table::Next(int& ioBucket, int& ioPlace) const {
    return element(_table.Next(ioBucket, ioPlace));
}
Element* Table::Next(Element* iElement) const {
    return element(_table.Next(iElement));
}

Element* Table::Remove(Element* iElement) {
    return element(_table.Remove(iElement));
}
Element* Table::RemovePosition(int iBucket, int iPlace) {
    return element(_table.RemovePosition(iBucket, iPlace));
}
void Table::RemoveAll() {
    _table.RemoveAll();
}
