// The text and date types of the system's own classes.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

using CString = QString;
using CStringArray = QStringList;
using COleDateTime = QDateTime;
