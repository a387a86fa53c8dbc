// What an encoder's file may do to the creator tag: nothing, and a file without the tag is left as it was.

#include "fuzz_support.h"
#include "io/pictures/software_tag.h"

using namespace zm;
using namespace Qt::StringLiterals;
using zm::fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray original(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QByteArray &format : {"jpeg"_ba, "webp"_ba, "png"_ba}) {
        QByteArray once = original;
        if (!embedSoftwareTag(once, format, u"Zelmora Atelier"_s)) {
            require(once == original, "a file that cannot be tagged stays as it was");
            continue;
        }
        require(once.contains("Zelmora Atelier"), "a tagged file names the software");
        QByteArray twice = once;
        require(embedSoftwareTag(twice, format, u"Zelmora Atelier"_s), "a tagged file can be tagged again");
        require(twice == once, "a second tag takes the place of the first");
        QByteArray other = once;
        require(embedSoftwareTag(other, format, u"Other"_s), "a tagged file can be tagged with another name");
        require(!other.contains("Zelmora Atelier") || original.contains("Zelmora Atelier"),
                "another tag takes the place of the first");
    }
    return 0;
}
