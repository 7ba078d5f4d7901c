/// Resource files in the folders of the collection standard.
///
/// The environment variables "QORCollectionStandard" and "QORDefaultCollectionStandard", in this order,
/// name folders separated by ";". A kind of resource has a sub-folder of its own in each of them. A
/// file of an earlier folder hides those of the same name in later ones.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORListValQORUnicodeString.h"

#include <vector>

class VELKOR_API QORIFCDXFileServices {
public:
    static constexpr const char* CollectionStandardVariables[] = {"QORCollectionStandard",
                                                                  "QORDefaultCollectionStandard"};

    /// One folder that a search looks into, and what it found there.
    struct SearchedFolder {
        /// Name of the variable that names the folder.
        const char* variable = nullptr;
        /// The sub-folder's path.
        QORUnicodeString path;
        bool isReadable = false;
        /// Names that count, and those that an earlier folder hides; both sorted.
        QORListValQORUnicodeString names;
        QORListValQORUnicodeString hiddenNames;
    };

    /// The folders in the order of the search. A name counts when it contains `nameText` anywhere,
    /// letter case included.
    static std::vector<SearchedFolder> SearchFolders(const QORUnicodeString& subFolder,
                                                     const QORUnicodeString& nameText);

    /// Full paths of the files that count, in the order of the search, in place of what `files`
    /// held: the folder, one backslash, the name. S_OK; E_UNEXPECTED and an empty list when there is none.
    static HRESULT FindResourceFiles(const QORUnicodeString& subFolder, const QORUnicodeString& extension,
                                     QORListValQORUnicodeString& files);
};
