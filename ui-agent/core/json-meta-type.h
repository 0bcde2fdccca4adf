#pragma once
// Json::Value as a Qt meta-type, so that requests, answers and notifications
// can travel through queued signal connections between threads.

#include <json/value.h>

#include <QMetaType>

Q_DECLARE_METATYPE(Json::Value)
