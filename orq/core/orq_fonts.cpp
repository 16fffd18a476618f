#include "orq_fonts.h"

#include <QFile>
#include <QFontDatabase>

QStringList orq_house_font_files()
{
  return {QStringLiteral("CorvanClear_Bd.ttf"),         QStringLiteral("CorvanClear_BdIt.ttf"),
          QStringLiteral("CorvanClear_It.ttf"),         QStringLiteral("CorvanClear_Rg.ttf"),
          QStringLiteral("corvan-clear-headline.woff"), QStringLiteral("corvan-clear-latin-bold.woff"),
          QStringLiteral("corvan-clear-latin-lite.woff"), QStringLiteral("corvan-clear-latin.woff")};
}

void orq_load_fonts_from_resources()
{
  const QStringList files = orq_house_font_files();
  for (const QString& name : files) {
    QFile file(QStringLiteral(":/fonts/") + name);
    if (!file.open(QIODevice::ReadOnly))
      continue;
    QFontDatabase::addApplicationFontFromData(file.readAll());
  }
}
