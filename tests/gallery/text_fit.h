#pragma once

#include <QStringList>

class QWidget;

namespace calvero::testing {

/// Everything in `window`, as it is laid out now, that a reader would find cut, covered or out of sight: one line for
/// each fault. Only the names of volumes may be shortened. What a scroll area can be scrolled to is in sight.
QStringList misfits(const QWidget& window);

}  // namespace calvero::testing
