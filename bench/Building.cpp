#include "Building.h"

#include <map>

namespace velkor::bench {

std::string together(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text += part;
    return text;
}

std::string guid(std::int64_t number) {
    std::string text = std::to_string(number);
    return std::string(22 - text.size(), '0').append(text);
}

namespace {

class Building {
public:
    explicit Building(std::size_t bytes) {
        _text = "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                "FILE_SCHEMA(('IFC2X3'));\nENDSEC;\nDATA;\n";
        const std::string person = add("IFCPERSON", "$,'Doe',$,$,$,$,$,$");
        const std::string organization = add("IFCORGANIZATION", "$,'Office',$,$,$");
        const std::string both = add("IFCPERSONANDORGANIZATION", together({person, ",", organization, ",$"}));
        const std::string application = add("IFCAPPLICATION", together({organization, ",'1','Program','P'"}));
        _history = add("IFCOWNERHISTORY", together({both, ",", application, ",$,.ADDED.,$,$,$,0"}));
        const std::string origin = add("IFCCARTESIANPOINT", "(0.,0.,0.)");
        _axes = add("IFCAXIS2PLACEMENT3D", together({origin, ",$,$"}));
        _up = add("IFCDIRECTION", "(0.,0.,1.)");
        _context = add("IFCGEOMETRICREPRESENTATIONCONTEXT", together({"$,'Model',3,1.E-05,", _axes, ",$"}));
        const std::string metre = add("IFCSIUNIT", "*,.LENGTHUNIT.,$,.METRE.");
        const std::string units = add("IFCUNITASSIGNMENT", together({"(", metre, ")"}));
        const std::string project = addRoot("IFCPROJECT", together({"'P',$,$,$,$,(", _context, "),", units}));
        const std::string site = addRoot("IFCBUILDINGSTOREY", "'S',$,$,$,$,$,.ELEMENT.,0.");
        _storey = site;
        addRoot("IFCRELAGGREGATES", together({"$,$,", project, ",(", site, ")"}));
        while (_text.size() < bytes) addElement();
        _text += "ENDSEC;\nEND-ISO-10303-21;\n";
    }

    const std::string& text() const { return _text; }

private:
    std::string add(const char* keyword, const std::string& parameters) {
        std::string name = together({"#", std::to_string(++_id)});
        _text.append(name).append("=").append(keyword).append("(").append(parameters).append(");\n");
        return name;
    }
    // The GlobalId is the instance's own.
    std::string addRoot(const char* keyword, const std::string& parameters) {
        return add(keyword, together({"'", guid(_id + 1), "',", _history, ",", parameters}));
    }

    std::string point(double x, double y) {
        return add("IFCCARTESIANPOINT", together({"(", std::to_string(x), ",", std::to_string(y), ")"}));
    }
    std::string point(double x, double y, double z) {
        const std::string numbers = together({std::to_string(x), ",", std::to_string(y), ",", std::to_string(z)});
        return add("IFCCARTESIANPOINT", together({"(", numbers, ")"}));
    }

    std::string sweptShape(double x) {
        const std::string first = point(x, 0.0);
        const std::string others = point(x + 4, 0.0) + ',' + point(x + 4, 0.3) + ',' + point(x, 0.3);
        const std::string curve = add("IFCPOLYLINE", together({"(", first, ",", others, ",", first, ")"}));
        const std::string profile = add("IFCARBITRARYCLOSEDPROFILEDEF", together({".AREA.,$,", curve}));
        const std::string solid = add("IFCEXTRUDEDAREASOLID", together({profile, ",", _axes, ",", _up, ",2.5"}));
        return add("IFCSHAPEREPRESENTATION", together({_context, ",'Body','SweptSolid',(", solid, ")"}));
    }
    std::string facetedShape(double x) {
        std::string corners[8];
        for (unsigned i = 0; i < 8; ++i) {
            corners[i] = point(x + (i & 1U ? 1.0 : 0.0), i & 2U ? 1.0 : 0.0, i & 4U ? 1.0 : 0.0);
        }
        constexpr unsigned sides[6][4]{{0, 2, 3, 1}, {4, 5, 7, 6}, {0, 1, 5, 4},
                                       {2, 6, 7, 3}, {0, 4, 6, 2}, {1, 3, 7, 5}};
        std::string faces;
        for (const auto& side : sides) {
            std::string loop;
            for (const unsigned corner : side) loop.append(loop.empty() ? "" : ",").append(corners[corner]);
            loop = add("IFCPOLYLOOP", together({"(", loop, ")"}));
            const std::string bound = add("IFCFACEOUTERBOUND", together({loop, ",.T."}));
            faces.append(faces.empty() ? "" : ",").append(add("IFCFACE", together({"(", bound, ")"})));
        }
        const std::string shell = add("IFCCLOSEDSHELL", together({"(", faces, ")"}));
        const std::string brep = add("IFCFACETEDBREP", shell);
        return add("IFCSHAPEREPRESENTATION", together({_context, ",'Body','Brep',(", brep, ")"}));
    }
    void addElement() {
        const double x = static_cast<double>(_id % 1000);
        const std::string placement = add("IFCLOCALPLACEMENT", together({"$,", _axes}));
        const std::string shapes = sweptShape(x) + ',' + facetedShape(x);
        const std::string shape = add("IFCPRODUCTDEFINITIONSHAPE", together({"$,$,(", shapes, ")"}));
        const std::string element =
            addRoot("IFCBUILDINGELEMENTPROXY", together({"'Element',$,$,", placement, ",", shape, ",$,$"}));
        std::string members;
        for (const char* name : {"Reference", "FireRating", "IsExternal", "Status"}) {
            members.append(members.empty() ? "" : ",")
                .append(add("IFCPROPERTYSINGLEVALUE", together({"'", name, "',$,IFCLABEL('a value'),$"})));
        }
        const std::string set = addRoot("IFCPROPERTYSET", together({"'Pset_Element',$,(", members, ")"}));
        addRoot("IFCRELDEFINESBYPROPERTIES", together({"$,$,(", element, "),", set}));
        addRoot("IFCRELCONTAINEDINSPATIALSTRUCTURE", together({"$,$,(", element, "),", _storey}));
    }

    std::string _text;
    std::int64_t _id = 0;
    std::string _history, _axes, _up, _context, _storey;
};

} // namespace

const std::string& building(std::int64_t megabytes) {
    static std::map<std::int64_t, Building> buildings;
    return buildings.try_emplace(megabytes, static_cast<std::size_t>(megabytes) * 1'000'000).first->second.text();
}

} // namespace velkor::bench
