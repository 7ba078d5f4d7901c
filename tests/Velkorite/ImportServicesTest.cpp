#include "QORIIFCImportServices.h"

#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/objectmodeler/QOROMModule.h"

#include <gmock/gmock.h>

namespace velkor::test {

using testing::StrEq;

/// An importer of the host, and the extension with which the host serves the library's interface.
class HostImporter : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS
};
class QOREHostImport : public QORIIFCImportServices {
    VELKOR_DECLARE_CLASS
public:
    HRESULT StartImport(const QORUnicodeString& path) override { return path == QORUnicodeString("a.ifc") ? 1 : -1; }
    HRESULT ImportInstance(DXSdaiAppInstance* instance) override { return instance == nullptr ? 2 : -1; }
    HRESULT EndImport() override { return 3; }
};
VELKOR_IMPLEMENT_CLASS(HostImporter, QORBaseUnknown, nullptr, "Host")
VELKOR_IMPLEMENT_CLASS(QOREHostImport, QORIIFCImportServices, "HostImporter", "Host")
VELKOR_IMPLEMENT_BOA(, QORIIFCImportServices, QOREHostImport)

namespace {

void* registerImport() {
    QORFillDictionary::Register(QOREHostImport::MetaObject(), QORIIFCImportServices::MetaObject(),
                                CreateBOAQORIIFCImportServicesQOREHostImport, nullptr, 1);
    QORFillDictionary::RegisterFunctionCreation("HostImport", objectmodeler::createInstance<QOREHostImport>);
    return nullptr;
}
constexpr QOROMRegistration table[] = {nullptr, registerImport, nullptr};

} // namespace

TEST(ImportServices, AreReachedByQueryingTheHostsImporter) {
    const QOROMModule module({std::begin(table), std::end(table) - 1});
    const auto importer = QORBaseUnknown_var::adopt(new HostImporter);
    const QORIIFCImportServices_var import = importer;
    ASSERT_FALSE(import.IsNull());
    EXPECT_EQ(import->StartImport("a.ifc"), 1);
    EXPECT_EQ(import->ImportInstance(nullptr), 2);
    EXPECT_EQ(import->EndImport(), 3);
    EXPECT_EQ(import, importer);

    QORIIFCImportServices* cast = QORIIFCImportServices_var::__CastTo(import);
    EXPECT_EQ(cast, import.get());
    EXPECT_EQ(cast->Release(), 1U) << "the cast gave a reference";
    void* byName = nullptr;
    ASSERT_EQ(importer->QueryInterface("QORIIFCImportServices", &byName), S_OK);
    EXPECT_EQ(static_cast<QORIIFCImportServices*>(byName)->Release(), 0U);

    const auto stranger = QORBaseUnknown_var::adopt(new QORBaseUnknown);
    EXPECT_EQ(QORIIFCImportServices_var::__CastTo(stranger), nullptr);
    EXPECT_EQ(QORIIFCImportServices_var::__CastTo(QORBaseUnknown_var()), nullptr);
    EXPECT_THROW(QORIIFCImportServices_var(stranger)->EndImport(), QORNullVarError);
}

TEST(ImportServices, DescribeThemselvesByTheirMetaClass) {
    EXPECT_EQ(QORIIFCImportServices::ClassId(), IID_QORIIFCImportServices);
    EXPECT_THAT(QORIIFCImportServices::ClassName(), StrEq("QORIIFCImportServices"));
    const QORMetaClass& metaClass = *QORIIFCImportServices::MetaObject();
    EXPECT_EQ(metaClass.GetTypeOfClass(), TypeOfInterface);
    EXPECT_EQ(metaClass.GetParent(), QORBaseUnknown::MetaObject());
    EXPECT_THAT(metaClass.GetFrameworkName(), StrEq("Velkorite"));
    QOREHostImport original;
    original.AddRef();
    EXPECT_EQ(original.IsAKindOf("QORIIFCImportServices"), 1);
    EXPECT_EQ(QOREHostImport(original).AddRef(), 2U) << "a copy has references of its own";
    EXPECT_EQ(QOREHostImport(std::move(original)).AddRef(), 2U);
}

} // namespace velkor::test
