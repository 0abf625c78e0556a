#include "WarmStart.h"

#if defined(QUILLANE_WARM_FONTS)
#include <fontconfig/fontconfig.h>
#endif
#if defined(QUILLANE_WARM_BUS)
#include <QDBusConnection>
#endif

namespace quillane::app {

std::jthread ReadFontConfiguration() {
#if defined(QUILLANE_WARM_FONTS)
    return std::jthread([] { FcInit(); });
#else
    return {};
#endif
}

std::jthread ConnectSessionBus() {
#if defined(QUILLANE_WARM_BUS)
    return std::jthread([] { QDBusConnection::sessionBus(); });
#else
    return {};
#endif
}

} // namespace quillane::app
