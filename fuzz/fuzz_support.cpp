#include "fuzz_support.h"

#include "io/image_allocation.h"

#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace zm::fuzz {

QGuiApplication &application()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"*=false"_s);
    static auto *application = new QGuiApplication(argc, argv);
    raiseImageAllocationLimit();
    return *application;
}

void require(bool kept, const char *promise)
{
    if (kept)
        return;
    std::fprintf(stderr, "FUZZ: broken promise: %s\n", promise);
    std::abort();
}

} // namespace zm::fuzz
