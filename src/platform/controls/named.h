#pragma once

#include <QObject>
#include <QString>

/// Every control carries the name by which tests, style sheets and accessibility tools find it. A member of a family
/// carries its index behind it: `Text1(3)`.
namespace controls {

inline QString familyName(QStringView family, int index)
{
    return family.toString() + u'(' + QString::number(index) + u')';
}

template<class Object> Object* named(Object* object, QStringView name)
{
    object->setObjectName(name.toString());
    return object;
}

template<class Object> Object* named(Object* object, QStringView family, int index)
{
    object->setObjectName(familyName(family, index));
    return object;
}

} // namespace controls
