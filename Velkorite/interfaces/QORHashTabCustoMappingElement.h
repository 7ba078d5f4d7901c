/// A hash table of custom mappings, which it does not own unless told by ApplyDelete. Its operations are those of
/// QORHashTable.
#pragma once

#include "CustoMappingElement.h"
#include "VelkorExport.h"

#include "velkor/containers/QORHashTable.h"

class VELKOR_API QORHashTabCustoMappingElement {
public:
    using HashFunction = unsigned int (*)(CustoMappingElement*);
    using CompareFunction = int (*)(CustoMappingElement*, CustoMappingElement*);

    /// `iDimension` is the number of elements expected.
    QORHashTabCustoMappingElement(HashFunction iHash, CompareFunction iCompare, int iDimension);
    QORHashTabCustoMappingElement(HashFunction iHash, CompareFunction iCompare, int iDimension, void* iExtra);
    QORHashTabCustoMappingElement(const QORHashTabCustoMappingElement& iOther);
    QORHashTabCustoMappingElement(QORHashTabCustoMappingElement&& iOther) noexcept;
    QORHashTabCustoMappingElement& operator=(const QORHashTabCustoMappingElement& iOther);
    QORHashTabCustoMappingElement& operator=(QORHashTabCustoMappingElement&& iOther) noexcept;
    virtual ~QORHashTabCustoMappingElement();

    bool operator==(const QORHashTabCustoMappingElement& iOther) const;
    bool operator!=(const QORHashTabCustoMappingElement& iOther) const;
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

    int Collisions() const;
    int Dimension() const;
    int Size() const;
    int Unused() const;
    QORHashCodeIter CreateIterator() const;

    /// Adds an element unless one present counts as the same. Gives the one that the table holds afterwards.
    CustoMappingElement* Insert(CustoMappingElement* iElement);
    CustoMappingElement* Locate(CustoMappingElement* iElement) const;
    int LocatePosition(CustoMappingElement* iElement, int& oBucket, int& oPlace) const;
    CustoMappingElement* KeyLocate(int iKey) const;
    int KeyLocatePosition(int iKey, int& oBucket, int& oPlace) const;
    CustoMappingElement* Retrieve(int iBucket, int iPlace) const;
    CustoMappingElement* Next(int& ioBucket, int& ioPlace) const;
    CustoMappingElement* Next(CustoMappingElement* iElement) const;

    /// Takes elements out without destroying them.
    CustoMappingElement* Remove(CustoMappingElement* iElement);
    CustoMappingElement* RemovePosition(int iBucket, int iPlace);
    void RemoveAll();

private:
    QORHashTable _table;
};
