#include "core/keep_alive.h"

#include <QCoreApplication>

#include <vector>

namespace zkp {

void releaseLater(std::shared_ptr<void> parts) {
    if (QCoreApplication* application = QCoreApplication::instance()) {
        QMetaObject::invokeMethod(
            application, [parts = std::move(parts)] {}, Qt::QueuedConnection);
        return;
    }
    static std::vector<std::shared_ptr<void>> ended;
    ended.push_back(std::move(parts));
}

} // namespace zkp
