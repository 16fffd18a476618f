#pragma once
// The viewer as its tests start it: a child process with its own home, as a
// user starts the tool, and what it prints and writes.
#include "orq_test_support.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

// Runs the viewer with a small design hierarchy unless args choose one: the
// default size is built for people, not for sanitizer runs. The chip keeps
// its default million shapes, but for the sanitizers.
inline int run_viewer(const QString& home, QStringList args, QString* err = nullptr, QString* out = nullptr)
{
  if (!args.contains(QStringLiteral("--hierarchy-rows")))
    args << QStringLiteral("--hierarchy-rows") << QStringLiteral("500");
  if (!args.contains(QStringLiteral("--shapes")))
    args << QStringLiteral("--shapes") << QString::number(orq_test_rounds(1000000, 100000));
  QProcess viewer;
  viewer.setProcessEnvironment(orq_test_child_environment(home));
  viewer.setWorkingDirectory(home);
  viewer.start(QStringLiteral(ORQ_VIEWER_PATH), args);
  if (!viewer.waitForFinished(60000)) {
    viewer.kill();
    viewer.waitForFinished();
    return -1;
  }
  if (err)
    *err = QString::fromLocal8Bit(viewer.readAllStandardError());
  if (out)
    *out = QString::fromLocal8Bit(viewer.readAllStandardOutput());
  return viewer.exitStatus() == QProcess::NormalExit ? viewer.exitCode() : -2;
}

// The line a screenshot run prints after "floorplan_viewer: <what>: ".
inline QString printed(const QString& out, const QString& what)
{
  const QRegularExpressionMatch line =
      QRegularExpression(
          QStringLiteral("floorplan_viewer: %1: ([^\n]*)\n").arg(QRegularExpression::escape(what)))
          .match(out);
  return line.hasMatch() ? line.captured(1) : QStringLiteral("<not printed>");
}

inline QByteArray file_bytes(const QString& file_name)
{
  QFile file(file_name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}
