#include "orq_safe_connect.h"

#include "orq_require_p.h"

#include <QMetaMethod>

namespace {
// SIGNAL() and SLOT() put a code digit before the signature.
const char* without_code(const char* signature)
{
  return signature && *signature >= '0' && *signature <= '9' ? signature + 1 : signature;
}

struct FOUND {
  bool valid = false;
  QString class_name;
  QString signature;
};

// Where a normalised signature resolves: the class that declares it.
FOUND find_method(const QMetaObject* meta, const QByteArray& normalised, bool signal)
{
  FOUND found;
  found.class_name = QString::fromLatin1(meta->className());
  found.signature = QString::fromLatin1(normalised);
  const int index = signal ? meta->indexOfSignal(normalised.constData()) : meta->indexOfMethod(normalised.constData());
  if (index < 0)
    return found;
  found.valid = true;
  const QMetaObject* owner = meta;
  while (owner->superClass() && index < owner->methodOffset())
    owner = owner->superClass();
  found.class_name = QString::fromLatin1(owner->className());
  found.signature = QString::fromLatin1(meta->method(index).methodSignature());
  return found;
}
}  // namespace

QString orq_safe_connect_diagnosis(const QObject* sender, const char* signal, const QObject* receiver,
                                   const char* method, const char* file, int line)
{
  QString report;
  if (!sender && receiver) {
    report = QStringLiteral("Error connecting SIGNALS: The sender pointer is NULL!");
  } else if (!sender && !receiver) {
    report = QStringLiteral("Error connecting SIGNALS: The sender and the receiver pointers are NULL!");
  } else if (!receiver) {
    report = QStringLiteral("Error connecting SIGNALS: The receiver pointer is NULL!");
  } else {
    const QByteArray signal_sig = QMetaObject::normalizedSignature(without_code(signal) ? without_code(signal) : "");
    const QByteArray method_sig = QMetaObject::normalizedSignature(without_code(method) ? without_code(method) : "");
    const FOUND signal_found = find_method(sender->metaObject(), signal_sig, true);
    const FOUND method_found = find_method(receiver->metaObject(), method_sig, false);
    // The slot is shown as the caller wrote it, code digit included: that is
    // the text to search for in the caller's source.
    report = QStringLiteral("Error connecting SIGNAL %1::%2 to SLOT %3::%4")
                 .arg(QString::fromLatin1(sender->metaObject()->className()),
                      QString::fromLatin1(without_code(signal) ? without_code(signal) : ""),
                      QString::fromLatin1(receiver->metaObject()->className()),
                      QString::fromLatin1(method ? method : ""));
    report += QStringLiteral("\n\tQMetaObject::checkConnectArgs() returns %1")
                  .arg(QMetaObject::checkConnectArgs(signal_sig.constData(), method_sig.constData())
                           ? QStringLiteral("true")
                           : QStringLiteral("false"));
    report += QStringLiteral("\n\tSIGNAL signature is %1 and maps to %2::%3")
                  .arg(signal_found.valid ? QStringLiteral("valid") : QStringLiteral("invalid"),
                       signal_found.class_name, signal_found.signature);
    report += QStringLiteral("\n\tSLOT signature is %1 and maps to %2::%3\n")
                  .arg(method_found.valid ? QStringLiteral("valid") : QStringLiteral("invalid"),
                       method_found.class_name, method_found.signature);
  }
  if (file)
    report += QStringLiteral("\n\tConnect location: %1: %2\n").arg(QString::fromLocal8Bit(file)).arg(line);
  return report;
}

void orq_safe_connect(const QObject* sender, const char* signal, const QObject* receiver,
                      const char* method, Qt::ConnectionType type, const char* file, int line)
{
  if (QObject::connect(sender, signal, receiver, method, type))
    return;
  ORQ_INTERNAL_ERROR(orq_safe_connect_diagnosis(sender, signal, receiver, method, file, line));
}
