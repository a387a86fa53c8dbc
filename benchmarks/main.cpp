#include "base/memory_tuning.h"
#include "bench.h"
#include "blur_bench.h"
#include "documents_bench.h"
#include "effects_bench.h"
#include "export_bench.h"
#include "io/image_allocation.h"
#include "scene_bench.h"
#include "shapes_bench.h"
#include "startup_bench.h"
#include "text_bench.h"
#include "vector_bench.h"
#include "window_bench.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct BenchGroup
{
    QLatin1StringView name;
    QList<zm::bench::BenchRow> (*run)();
};

constexpr BenchGroup kGroups[] = {
    {"scene"_L1, zm::bench::benchScene},         {"vectors"_L1, zm::bench::benchVectors},
    {"blur"_L1, zm::bench::benchBlur},           {"effects"_L1, zm::bench::benchEffects},
    {"text"_L1, zm::bench::benchText},           {"export"_L1, zm::bench::benchExport},
    {"documents"_L1, zm::bench::benchDocuments}, {"shapes"_L1, zm::bench::benchShapes},
    {"start"_L1, zm::bench::benchStartup},       {"window"_L1, zm::bench::benchWindow},
    {"controls"_L1, zm::bench::benchControls},
};

void print(const QList<zm::bench::BenchRow> &rows)
{
    for (const zm::bench::BenchRow &row : rows)
        std::printf("| %-58s | %9.2f ms | %s\n", qUtf8Printable(row.name), row.medianMs, qUtf8Printable(row.note));
    std::fflush(stdout);
}

} // namespace

// zelmora_bench [GROUP]: prints a table of medians, each beside the floor measured in the same run.
// zelmora_bench effects PART: of the effects whose id contains PART.
int main(int argc, char **argv)
{
    zm::keepFreedMemoryWarm();
    QLoggingCategory::setFilterRules(u"*.debug=false"_s); // the table stands alone
    const QGuiApplication application(argc, argv);
    zm::raiseImageAllocationLimit();

    const QString wanted = application.arguments().value(1);
    bool found = false;
    for (const BenchGroup &group : kGroups) {
        if (!wanted.isEmpty() && wanted != group.name)
            continue;
        found = true;
        std::printf("%s\n", group.name.data());
        print(group.run());
    }
    if (!found) {
        std::fprintf(stderr, "zelmora_bench: there is no group named %s\n", qUtf8Printable(wanted));
        return 2;
    }
    return 0;
}
