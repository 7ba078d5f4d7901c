/// A hash table of custom mappings, which it does not own unless told by ApplyDelete. Its operations are those of
/// QORHashTable.
#pragma once

#include "CustoMappingElement.h"
#include "VelkorExport.h"

#include "velkor/containers/QORHashTable.h"

class VELKOR_API QORHashTabCustoMappingElement {
public:
    using HashFunction = unsigned int (*)(CustoMappingElement*); ///< Hash of an element.
    /// 0 when two elements are the same entry.
    using CompareFunction = int (*)(CustoMappingElement*, CustoMappingElement*);

    /// `iDimension` is the number of elements expected.
    QORHashTabCustoMappingElement(HashFunction iHash, CompareFunction iCompare, int iDimension);
    /// The same, and keeps something of the host's beside it.
    QORHashTabCustoMappingElement(HashFunction iHash, CompareFunction iCompare, int iDimension, void* iExtra);
    QORHashTabCustoMappingElement(const QORHashTabCustoMappingElement& iOther);
    QORHashTabCustoMappingElement(QORHashTabCustoMappingElement&& iOther) noexcept;
    QORHashTabCustoMappingElement& operator=(const QORHashTabCustoMappingElement& iOther);
    QORHashTabCustoMappingElement& operator=(QORHashTabCustoMappingElement&& iOther) noexcept;
    virtual ~QORHashTabCustoMappingElement();

    bool operator==(const QORHashTabCustoMappingElement& iOther) const; ///< Compares what the tables hold.
    bool operator!=(const QORHashTabCustoMappingElement& iOther) const; ///< The opposite of ==.
    /// The element that an iterator stands at.
    CustoMappingElement* operator[](const QORHashCodeIter& iIterator) const;

    /// Destroys every element and empties the table.
    void ApplyDelete();
    /// Calls a function on each element from `iStart` (the first for null) until an answer is not 0, and gives the
    /// number of calls. The element called last and its answer go to the outputs that are not null.
    int ApplyGlobalFunct(int (*iFunction)(CustoMappingElement*), CustoMappingElement* iStart,
                         CustoMappingElement** oLast, int* oResult) const;
    /// The same with a member function.
    int ApplyMemberFunct(int (CustoMappingElement::*iFunction)(), CustoMappingElement* iStart,
                         CustoMappingElement** oLast, int* oResult) const;
    int ApplyMemberFunctConst(int (CustoMappingElement::*iFunction)() const, CustoMappingElement* iStart,
                              CustoMappingElement** oLast, int* oResult) const;

    int Collisions() const;                 ///< How many elements share their bucket with an earlier one.
    int Dimension() const;                  ///< Number of buckets.
    int Size() const;                       ///< Number of elements.
    int Unused() const;                     ///< Number of empty buckets.
    QORHashCodeIter CreateIterator() const; ///< An iterator at the first element.

    /// Adds an element unless one present counts as the same. Gives the one that the table holds afterwards.
    CustoMappingElement* Insert(CustoMappingElement* iElement);
    /// The element that counts as the same; null when there is none.
    CustoMappingElement* Locate(CustoMappingElement* iElement) const;
    /// 1 and the position when the element is found, else 0.
    int LocatePosition(CustoMappingElement* iElement, int& oBucket, int& oPlace) const;
    CustoMappingElement* KeyLocate(int iKey) const; ///< The first element with a hash; null when there is none.
    /// 1 and the position of the first one with a hash, else 0.
    int KeyLocatePosition(int iKey, int& oBucket, int& oPlace) const;
    CustoMappingElement* Retrieve(int iBucket, int iPlace) const; ///< The element at a place; null when there is none.
    /// Goes on to the next element and gives it; null behind the last.
    CustoMappingElement* Next(int& ioBucket, int& ioPlace) const;
    /// The element behind another, the first for null; null behind the last.
    CustoMappingElement* Next(CustoMappingElement* iElement) const;

    /// Takes elements out without destroying them.
    CustoMappingElement* Remove(CustoMappingElement* iElement);
    /// Takes the element at a place out of the table; null when there is none.
    CustoMappingElement* RemovePosition(int iBucket, int iPlace);
    void RemoveAll(); ///< Takes all elements out of the table.

private:
    QORHashTable _table;
};
