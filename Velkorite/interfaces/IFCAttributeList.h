/// Values that the collection standard's attribute catalogue gives to IFC attributes, by the generation of the
/// IFC schema.
///
///     QORUnicodeString value;
///     IFCAttributeList::GetInstance()->GetAttributeValue("FireRating", "IfcWall", "Pset_WallCommon", IfcLevel2X3,
///     value);
///
/// The catalogue is the first ".xml" file that the folders of the collection standard have below
/// "IFCAttributes" (QORIFCDXFileServices says how they are searched); all others are ignored:
///
///     <Catalogue>
///       <Level ID="2X3">
///         <AttributeID Name="FireRating" Entity="IfcWall" PropertySet="Pset_WallCommon" Value="…"/>
///       </Level>
///     </Catalogue>
///
/// The "ID" is "2X3" or "4ANDABOVE", letter case ignored; any other is the general level. An absent
/// attribute is an empty text. Of entries with the same name, entity and property set, the first of a level
/// counts. Calls from one thread.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/text/QORUnicodeString.h"

class IFCAttributeTables;

/// Generation of the IFC schema that a value is for.
enum IfcLevel : int {
    IfcLevelGeneral = 0,
    IfcLevel2X3 = 1,
    IfcLevel4AndAbove = 2,
};

namespace velkor {

/// How the catalogue calls a level, letter case ignored.
struct AttributeLevel {
    IfcLevel level;
    const char* id;
};
inline constexpr AttributeLevel attributeLevels[] = {
    {IfcLevel2X3, "2X3"}, {IfcLevel4AndAbove, "4ANDABOVE"}, {IfcLevelGeneral, "General"}};

} // namespace velkor

class VELKOR_API IFCAttributeList {
public:
    /// The level that an "ID" means: the general one for a name that no level has.
    static IfcLevel GetLevel(const QORUnicodeString& iID);

    /// The one list. It reads the catalogue when it is made, on first use, and is gone when the library is
    /// unloaded; it is never read again.
    static IFCAttributeList* GetInstance();

    /// The value of an attribute, letter case included: that of the level, else that of the general level. S_OK;
    /// E_FAIL, and an empty value, when there is none or it is empty.
    HRESULT GetAttributeValue(const QORUnicodeString& iName, const QORUnicodeString& iEntity,
                              const QORUnicodeString& iPropertySet, IfcLevel iLevel, QORUnicodeString& oValue);

    IFCAttributeList(const IFCAttributeList&) = delete;
    /// Makes the tables those of the other list. There is one list, so nothing changes.
    IFCAttributeList& operator=(const IFCAttributeList&) = default;

private:
    IFCAttributeList();
    ~IFCAttributeList();
    static int DeleteInst(int);

    /// Full paths of the catalogues in the order of the search, in place of what `oFiles` held. S_OK.
    HRESULT ListFileFromRTV(QORListValQORUnicodeString& oFiles);
    /// Adds the names of a directory's entries that contain `iPattern`. S_OK; S_FALSE when it cannot be opened.
    HRESULT GiveFilesInDirectory(const char* iDirectory, const char* iPattern, QORListValQORUnicodeString& oFiles);

    IFCAttributeTables* _tables = nullptr;
    static IFCAttributeList* _pInstance;
};
