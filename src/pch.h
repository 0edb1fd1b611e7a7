#pragma once
// The Qt headers that nearly every file includes; precompiled once for each target.
#include <QDate>
#include <QDateTime>
#include <QDomElement>
#include <QFont>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVector>
#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <vector>
