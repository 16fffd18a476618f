#include "orq_test_support.h"

#include <orq_safe_connect.h>

#include <gen_internal_error.h>

#include <QTimer>

#include <stdexcept>

namespace {
struct REPORTED : std::runtime_error {
  using std::runtime_error::runtime_error;
};

void throwing_handler(const QString&, const char* condition, const char* module, const char*, int)
{
  throw REPORTED(std::string(module) + '|' + condition);
}

class EMITTER : public QObject {
  Q_OBJECT
signals:
  void value_changed(int value);
  void renamed(const QString& name);
};

class RECEIVER : public EMITTER {
  Q_OBJECT
public slots:
  void take_value(int v) { last = v; }
  void take_name(const QString&) {}

public:
  int last = 0;
};
}  // namespace

class TST_ORQ_SAFE_CONNECT : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void valid_connection_is_made_and_reports_nothing()
  {
    EMITTER sender;
    RECEIVER receiver;
    const GEN_INTERNAL_ERROR_HANDLER previous = gen_set_internal_error_handler(throwing_handler);
    orq_safe_connect(&sender, SIGNAL(value_changed(int)), &receiver, SLOT(take_value(int)),
                     Qt::AutoConnection, __FILE__, __LINE__);
    gen_set_internal_error_handler(previous);
    emit sender.value_changed(42);
    QCOMPARE(receiver.last, 42);
  }

  void failure_shapes_are_diagnosed_data()
  {
    QTest::addColumn<bool>("has_sender");
    QTest::addColumn<bool>("has_receiver");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<QByteArray>("method");
    QTest::addColumn<bool>("with_location");
    QTest::addColumn<QString>("expected");

    QTest::newRow("sender null") << false << true << QByteArray(SIGNAL(value_changed(int)))
                                 << QByteArray(SLOT(take_value(int))) << false
                                 << "Error connecting SIGNALS: The sender pointer is NULL!";
    QTest::newRow("both null") << false << false << QByteArray(SIGNAL(value_changed(int)))
                               << QByteArray(SLOT(take_value(int))) << false
                               << "Error connecting SIGNALS: The sender and the receiver pointers are NULL!";
    QTest::newRow("receiver null, with location")
        << true << false << QByteArray(SIGNAL(value_changed(int))) << QByteArray(SLOT(take_value(int))) << true
        << "Error connecting SIGNALS: The receiver pointer is NULL!"
           "\n\tConnect location: floorplan_window.cpp: 120\n";
    QTest::newRow("signal that does not exist")
        << true << true << QByteArray(SIGNAL(value_chnaged(int))) << QByteArray(SLOT(take_value(int))) << false
        << "Error connecting SIGNAL EMITTER::value_chnaged(int) to SLOT RECEIVER::1take_value(int)"
           "\n\tQMetaObject::checkConnectArgs() returns true"
           "\n\tSIGNAL signature is invalid and maps to EMITTER::value_chnaged(int)"
           "\n\tSLOT signature is valid and maps to RECEIVER::take_value(int)\n";
    QTest::newRow("slot that does not exist, with location")
        << true << true << QByteArray(SIGNAL(value_changed(int))) << QByteArray(SLOT(take_valeu(int))) << true
        << "Error connecting SIGNAL EMITTER::value_changed(int) to SLOT RECEIVER::1take_valeu(int)"
           "\n\tQMetaObject::checkConnectArgs() returns true"
           "\n\tSIGNAL signature is valid and maps to EMITTER::value_changed(int)"
           "\n\tSLOT signature is invalid and maps to RECEIVER::take_valeu(int)\n"
           "\n\tConnect location: floorplan_window.cpp: 120\n";
    QTest::newRow("arguments that do not match")
        << true << true << QByteArray(SIGNAL(value_changed(int))) << QByteArray(SLOT(take_name(QString))) << false
        << "Error connecting SIGNAL EMITTER::value_changed(int) to SLOT RECEIVER::1take_name(QString)"
           "\n\tQMetaObject::checkConnectArgs() returns false"
           "\n\tSIGNAL signature is valid and maps to EMITTER::value_changed(int)"
           "\n\tSLOT signature is valid and maps to RECEIVER::take_name(QString)\n";
    QTest::newRow("signature in unnormalised form, inherited signal")
        << true << true << QByteArray(SIGNAL(renamed(const QString &))) << QByteArray(SLOT(take_value(int)))
        << false
        << "Error connecting SIGNAL RECEIVER::renamed(const QString &) to SLOT RECEIVER::1take_value(int)"
           "\n\tQMetaObject::checkConnectArgs() returns false"
           "\n\tSIGNAL signature is valid and maps to EMITTER::renamed(QString)"
           "\n\tSLOT signature is valid and maps to RECEIVER::take_value(int)\n";
  }

  void failure_shapes_are_diagnosed()
  {
    QFETCH(bool, has_sender);
    QFETCH(bool, has_receiver);
    QFETCH(QByteArray, signal);
    QFETCH(QByteArray, method);
    QFETCH(bool, with_location);
    QFETCH(QString, expected);

    RECEIVER sender_object;
    RECEIVER receiver_object;
    // The last row sends from a RECEIVER so the signal is inherited.
    QObject* sender = has_sender ? static_cast<QObject*>(&sender_object) : nullptr;
    EMITTER emitter;
    if (has_sender && !QByteArray(QTest::currentDataTag()).contains("inherited"))
      sender = &emitter;
    QObject* receiver = has_receiver ? &receiver_object : nullptr;

    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^QObject::connect")));
    const GEN_INTERNAL_ERROR_HANDLER previous = gen_set_internal_error_handler(throwing_handler);
    QString report;
    try {
      orq_safe_connect(sender, signal.constData(), receiver, method.constData(), Qt::AutoConnection,
                       with_location ? "floorplan_window.cpp" : nullptr, 120);
    } catch (const REPORTED& e) {
      report = QString::fromStdString(e.what());
    }
    gen_set_internal_error_handler(previous);
    QCOMPARE(report, QStringLiteral("ORQ|") + expected);
  }
};

ORQ_TEST_REGISTER(TST_ORQ_SAFE_CONNECT);
#include "tst_orq_safe_connect.moc"
