/// The host's conversion options: pairs of a name and a value, all of which are kept, and a few of
/// which the IFC side acts upon.
///
///     QORIFCOptionsFromXCAD* options = QORIFCOptionsFromXCAD::GetInstance();
///     options->SetXCADConversionOptionForIFC("IFC_Disable_Version_Mapping", "true");
///     …
///     QORIFCOptionsFromXCAD::DeleteInstance();
///
///     name                           value                      effect
///     "IFC_Disable_Version_Mapping"  an affirmative one         version and custom mapping are off
///     (letter case included)         any other                  they are on
///     "TransferAllIntoOneRep"        "TransferAsFeatureRep"     exchange profile 2
///     (letter case ignored)          "AllToOneTessellatedRep"   exchange profile 0
///     "WriteXCADOptions"             any                        left out of a list of options
///
/// Affirmative are "true", "ok", "yes", "1" and "full_authorization", letter case ignored.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/text/QORListValQORUnicodeString.h"

class VELKOR_API QORIFCOptionsFromXCAD : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    static constexpr const char* DisableVersionMappingOption = "IFC_Disable_Version_Mapping";
    static constexpr const char* TransferAllOption = "TransferAllIntoOneRep";
    static constexpr const char* WriteOptionsOption = "WriteXCADOptions";

    /// What a pair acts upon: nothing, so that it is only kept; version and custom mapping; the exchange profile.
    /// Pairs of the last kind are left out of lists, and kept like any other outside them.
    enum class Effect { None, VersionMapping, ExchangeProfile, LeftOut };
    /// What the services would do with an option.
    static Effect GetEffect(const QORUnicodeString& name, const QORUnicodeString& value);

    /// The one record, made empty on first use. It stays until DeleteInstance.
    static QORIFCOptionsFromXCAD* GetInstance();
    static void DeleteInstance(); ///< Ends the one object; nothing when there is none.
    /// Null: the object modeler makes no second record.
    static QORBaseUnknown* CreateItself();

    /// Keeps a pair, in place of an earlier value of the name, and acts on it. S_OK when it was acted
    /// upon, E_FAIL when it was only kept. An exchange log of level 2 or more is told.
    HRESULT SetXCADConversionOptionForIFC(const QORUnicodeString& name, const QORUnicodeString& value);
    /// The same for two lists of the same size. S_OK when at least one pair was acted upon; E_FAIL,
    /// and nothing kept, when the lists are empty or differ in size.
    HRESULT SetXCADConversionOptionsForIFC(const QORListValQORUnicodeString& names,
                                           const QORListValQORUnicodeString& values);
    /// Appends all names and all values to the caller's lists. S_OK.
    HRESULT GetAllOptions(QORListValQORUnicodeString& names, QORListValQORUnicodeString& values);
    /// True when the value kept for the name (letter case included) is "TRUE" or "1", letter case
    /// ignored. Other affirmative words do not count here.
    bool IsOptionSet(const QORUnicodeString& name);
    /// S_OK when the version mapping is switched off, else E_FAIL.
    HRESULT GetValueIFCVersionMapping();

protected:
    QORIFCOptionsFromXCAD();
    ~QORIFCOptionsFromXCAD() override;

private:
    unsigned char Affirmatif(const QORUnicodeString& value);
    unsigned char Negatif(const QORUnicodeString& value);

    static QORIFCOptionsFromXCAD* _Instance;

    QORListValQORUnicodeString _optionNames;
    QORListValQORUnicodeString _optionValues;
    unsigned char _disableVersionMapping = 0;
};
