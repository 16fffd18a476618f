#pragma once
// QObject::connect for SIGNAL()/SLOT() strings that turns a failed connection
// into an internal error with a full diagnosis, instead of a warning that
// scrolls by. Pass your own __FILE__ and __LINE__, or use ORQ_SAFE_CONNECT.
#include "orq_export.h"

#include <QObject>
#include <QString>

ORQ_EXPORT void orq_safe_connect(const QObject* sender, const char* signal, const QObject* receiver,
                                 const char* method, Qt::ConnectionType type = Qt::AutoConnection,
                                 const char* file = nullptr, int line = 0);

// The report orq_safe_connect gives for a connection that failed.
ORQ_EXPORT QString orq_safe_connect_diagnosis(const QObject* sender, const char* signal,
                                              const QObject* receiver, const char* method,
                                              const char* file, int line);

#define ORQ_SAFE_CONNECT(sender, signal, receiver, method)                                        \
  orq_safe_connect(sender, signal, receiver, method, Qt::AutoConnection, __FILE__, __LINE__)
