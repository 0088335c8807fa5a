#include "platform/controls/pad_key.h"

#include "platform/controls/icons.h"

#include <QPushButton>

namespace controls {

using namespace Qt::StringLiterals;

QPushButton* padKey(const QString& caption)
{
    auto* key = new QPushButton(caption);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    key->setFocusPolicy(Qt::NoFocus);
    key->setAutoDefault(false);
    key->setProperty("padKey", true);
    return key;
}

QPushButton* padBackspace()
{
    QPushButton* key = padKey();
    key->setIcon(icon(u"retour-arriere"));
    key->setIconSize({26, 26});
    key->setAccessibleName(u"Effacer"_s);
    return key;
}

} // namespace controls
