// Contact sheet of a directory of SVG icons, to judge them as the library will show them.
//
//   icon_sheet <svg dir> <out.png>
//
// Each icon appears at 16 px through QSvgRenderer (what a model or delegate paints) and at 32 px
// through QIcon (what buttons and menus use), once on white and once on a toolbar grey, because
// a badge halo or a light fill that works on one background can vanish on the other.

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

constexpr int COLUMNS = 6;
constexpr int CELL_WIDTH = 168;
constexpr int CELL_HEIGHT = 54;
const QColor TOOLBAR_GREY(0xe4, 0xe7, 0xeb);

QImage render_svg(const QString& path, int size)
{
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QSvgRenderer renderer(path);
  QPainter painter(&image);
  renderer.render(&painter, QRectF(0, 0, size, size));
  return image;
}

// The library's own tests demand a full-size pixmap with more touched pixels
// than the edge length; a glyph that thin would also be too faint to read, so
// the sheet flags it before the tests do.
int inked_pixels(const QImage& image)
{
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
  return count;
}

} // namespace

int main(int argc, char* argv[])
{
  QApplication app(argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: icon_sheet <svg dir> <out.png>\n");
    return 2;
  }
  const QDir dir(QString::fromLocal8Bit(argv[1]));
  const QStringList files = dir.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
  if (files.isEmpty()) {
    std::fprintf(stderr, "icon_sheet: no SVG files in %s\n", argv[1]);
    return 1;
  }

  const int rows = (files.size() + COLUMNS - 1) / COLUMNS;
  QImage sheet(COLUMNS * CELL_WIDTH, rows * CELL_HEIGHT, QImage::Format_ARGB32_Premultiplied);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  QFont font = painter.font();
  font.setPixelSize(10);
  painter.setFont(font);

  int invalid = 0;
  int weak = 0;
  for (int i = 0; i < files.size(); ++i) {
    const QString path = dir.filePath(files.at(i));
    if (!QSvgRenderer(path).isValid()) {
      std::fprintf(stderr, "icon_sheet: cannot parse %s\n", qPrintable(path));
      ++invalid;
    }
    const int x = (i % COLUMNS) * CELL_WIDTH;
    const int y = (i / COLUMNS) * CELL_HEIGHT;
    const QImage small = render_svg(path, 16);
    const QPixmap large = QIcon(path).pixmap(32, 32);
    if (large.size() != QSize(32, 32) || inked_pixels(small) <= 16 || inked_pixels(large.toImage()) <= 32) {
      std::fprintf(stderr, "icon_sheet: %s is too small or too faint\n", qPrintable(files.at(i)));
      ++weak;
    }

    painter.drawImage(x + 4, y + 4, small);
    painter.drawPixmap(x + 24, y + 4, large);
    painter.fillRect(QRect(x + 60, y, 60, 40), TOOLBAR_GREY);
    painter.drawImage(x + 64, y + 4, small);
    painter.drawPixmap(x + 84, y + 4, large);

    QString label = QFileInfo(files.at(i)).completeBaseName();
    if (label.startsWith(QLatin1String("orq_")))
      label = label.mid(4);
    painter.setPen(QColor(0x3c, 0x48, 0x56));
    painter.drawText(QRect(x + 4, y + 38, CELL_WIDTH - 8, 14), Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(label, Qt::ElideMiddle, CELL_WIDTH - 8));
  }
  painter.end();

  if (!sheet.save(QString::fromLocal8Bit(argv[2]))) {
    std::fprintf(stderr, "icon_sheet: cannot write %s\n", argv[2]);
    return 1;
  }
  std::printf("%d icons, %d unreadable, %d too small or faint -> %s\n", int(files.size()), invalid, weak,
              argv[2]);
  return invalid || weak ? 1 : 0;
}
