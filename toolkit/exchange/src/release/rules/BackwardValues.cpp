// Enumerators and required values of older releases.
#include "release/rules/BackwardTables.h"
#include "release/rules/IsoTimes.h"

namespace velkor::exchange {

namespace {

constexpr ConversionRule spelled{"enumerator-spelling", Effect::Converted,
                                 "An enumerator is spelled as the release spells it", "Both mean the same"};
constexpr ConversionRule doors{"door-operation", Effect::Converted,
                               "Doors of two leaves are called double panel or double door as the release has it",
                               "Release candidates of IFC4X3 and IFC4X4 renamed the operations of doors"};
constexpr ConversionRule outside{"outside-kind", Effect::Lost,
                                 "What lies outside is told no more from earth, water and other buildings",
                                 "IFC2X3 has EXTERNAL alone"};
constexpr ConversionRule change{"change-not-defined", Effect::Converted, "A change that is not defined is NOCHANGE",
                                "IFC2X3 requires one of its list, and none that is not defined"};

constexpr EnumeratorRule enumerators[] = {
    {doors, "IFCDOORSTYLEOPERATIONENUM", "DOUBLE_PANEL_SINGLE_SWING", "DOUBLE_DOOR_SINGLE_SWING"},
    {doors, "IFCDOORSTYLEOPERATIONENUM", "DOUBLE_PANEL_SINGLE_SWING_OPPOSITE_LEFT",
     "DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_LEFT"},
    {doors, "IFCDOORSTYLEOPERATIONENUM", "DOUBLE_PANEL_SINGLE_SWING_OPPOSITE_RIGHT",
     "DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_RIGHT"},
    {doors, "IFCDOORSTYLEOPERATIONENUM", "DOUBLE_PANEL_DOUBLE_SWING", "DOUBLE_DOOR_DOUBLE_SWING"},
    {doors, "IFCDOORSTYLEOPERATIONENUM", "DOUBLE_PANEL_SLIDING", "DOUBLE_DOOR_SLIDING"},
    {doors, "IFCDOORSTYLEOPERATIONENUM", "DOUBLE_PANEL_FOLDING", "DOUBLE_DOOR_FOLDING"},
    {doors, "IFCDOORSTYLEOPERATIONENUM", "REVOLVING_HORIZONTAL", "REVOLVING"},
    {spelled, "IFCROLEENUM", "COMMISSIONINGENGINEER", "COMISSIONINGENGINEER"},
    {spelled, "IFCAUDIOVISUALAPPLIANCETYPEENUM", "COMMUNICATIONTERMINAL", "RAILWAY_COMMUNICATION_TERMINAL"},
    {spelled, "IFCCOMMUNICATIONSAPPLIANCETYPEENUM", "INTELLIGENTPERIPHERAL", "INTELLIGENT_PERIPHERAL"},
    {spelled, "IFCCOMMUNICATIONSAPPLIANCETYPEENUM", "IPNETWORKEQUIPMENT", "IP_NETWORK_EQUIPMENT"},
    {spelled, "IFCCOMMUNICATIONSAPPLIANCETYPEENUM", "OPTICALNETWORKUNIT", "OPTICAL_NETWORK_UNIT"},
    {spelled, "IFCMOBILETELECOMMUNICATIONSAPPLIANCETYPEENUM", "REMOTERADIOUNIT", "REMOTE_RADIO_UNIT"},
    {spelled, "IFCMARINEPARTTYPEENUM", "STORAGEAREA", "STORAGE"},
    {spelled, "IFCRAILWAYPARTTYPEENUM", "PLAINTRACKSUPERSTRUCTURE", "PLAINTRACK"},
    {spelled, "IFCRAILWAYPARTTYPEENUM", "PLAINTRACKSUPERSTRUCTURE", "PLAINTRACKSUPESTRUCTURE"},
    {spelled, "IFCPROTECTIVEDEVICETYPEENUM", "EARTHLEAKAGECIRCUITBREAKER", "EARTHFAILUREDEVICE"},
    {spelled, "IFCBUILTSYSTEMTYPEENUM", "MOORING", "MOORINGSYSTEM"},
    {spelled, "IFCELECTRICAPPLIANCETYPEENUM", "FREESTANDINGELECTRICHEATER", "ELECTRICHEATER"},
    {spelled, "IFCELECTRICAPPLIANCETYPEENUM", "FREESTANDINGWATERHEATER", "WATERHEATER"},
    {spelled, "IFCELECTRICAPPLIANCETYPEENUM", "FREESTANDINGWATERCOOLER", "WATERCOOLER"},
    {outside, "IFCINTERNALOREXTERNALENUM", "EXTERNAL_EARTH", "EXTERNAL"},
    {outside, "IFCINTERNALOREXTERNALENUM", "EXTERNAL_WATER", "EXTERNAL"},
    {outside, "IFCINTERNALOREXTERNALENUM", "EXTERNAL_FIRE", "EXTERNAL"},
    {change, "IFCCHANGEACTIONENUM", "NOTDEFINED", "NOCHANGE"},
};

constexpr ConversionRule proxied{"proxy-type", Effect::Converted, "A proxy that stands for a product says so",
                                 "Proxies may stand for other objects too, and the release requires which"};

constexpr ConversionRule approval{"approval-time", Effect::Converted,
                                  "An approval without a time has the day of the conversion",
                                  "IFC2X3 requires one; it was approved by then"};
constexpr ConversionRule metric{"metric-value", Effect::Converted, "A metric without a value has an empty text",
                                "IFC2X3 requires a value"};

std::uint64_t addDay(Rebuilding& rebuilding) {
    const std::optional<IsoTime> time = IsoTime::read(rebuilding.timeStamp().substr(0, 10));
    RecordBuilder date(rebuilding.target(), "IFCCALENDARDATE");
    date.set("DAYCOMPONENT", integer(time ? time->day : 1));
    date.set("MONTHCOMPONENT", integer(time ? time->month : 1));
    date.set("YEARCOMPONENT", integer(time ? time->year : 1970));
    return rebuilding.add(date);
}

std::optional<std::string> day(Rebuilding& rebuilding) {
    return reference(rebuilding.shared("day of the conversion", addDay));
}

constexpr DefaultRule defaults[] = {
    {approval, "IFCAPPROVAL", "APPROVALDATETIME", nullptr, day},
    {metric, "IFCMETRIC", "DATAVALUE", "IFCTEXT('')"},
    {proxied, "IFCPROXY", "PROXYTYPE", ".PRODUCT."},
};

} // namespace

std::span<const DefaultRule> backwardDefaults() {
    return defaults;
}

std::span<const EnumeratorRule> backwardEnumerators() {
    return enumerators;
}

} // namespace velkor::exchange
