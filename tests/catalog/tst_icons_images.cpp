// Icons, cursors, pixmaps, animations and file-type icons: every catalogue
// entry has a real resource that draws something.
#include "orq_test_support.h"

#include <orq.h>

#include <QBitmap>
#include <QFile>
#include <QMovie>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

namespace {

ORQ_ICON_ENUM icon_of(int value)
{
  return static_cast<ORQ_ICON_ENUM>(value);
}

int opaque_pixels(const QImage& image)
{
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      count += qAlpha(image.pixel(x, y)) > 0 ? 1 : 0;
  return count;
}

} // namespace

class TST_ICONS_IMAGES : public QObject {
  Q_OBJECT
private slots:
  void initTestCase() { orq_test_strict_messages(); }

  void every_icon_has_its_file_and_draws_at_16_and_32_pixels()
  {
    for (int value = 1; value <= ORQ_ICON_COUNT; ++value) {
      const ORQ_ICON_ENUM icon = icon_of(value);
      const QStringList files = orq_get_icon_file_names(icon);
      QCOMPARE(files.size(), 1);
      const QString path = files.first();
      QVERIFY2(QFile::exists(path), qPrintable(path));
      QVERIFY2(QFile(path).size() > 0, qPrintable(path));
      const QIcon picture = orq_get_icon(icon);
      QVERIFY(!picture.isNull());
      for (int edge : {16, 32}) {
        const QImage image = picture.pixmap(edge, edge).toImage();
        QCOMPARE(image.size(), QSize(edge, edge));
        QVERIFY2(opaque_pixels(image) > edge, qPrintable(path));
      }
      if (path.endsWith(QLatin1String(".svg")))
        QVERIFY2(QSvgRenderer(path).isValid(), qPrintable(path));
    }
    QCOMPARE(ORQ_ICON_COUNT, 766);
  }

  void icon_names_follow_the_file_rule_and_round_trip()
  {
    QString previous;
    for (int value = 1; value <= ORQ_ICON_COUNT; ++value) {
      const QString path = orq_get_icon_file_names(icon_of(value)).first();
      // Recover the enumerator name from the path: the path is the rule.
      const QString stem = path.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0);
      const QString name = QStringLiteral("ORQ_%1_ICON").arg(stem.mid(4).toUpper());
      if (path.startsWith(QLatin1String(":/icons/svg/")))
        QVERIFY2(path.endsWith(QLatin1String(".svg")) && stem.startsWith(QLatin1String("orq_")),
                 qPrintable(path));
      else
        QCOMPARE(path, QStringLiteral(":/icons/flat/orq_status.png"));
      QCOMPARE(int(orq_get_icon_enum(name)), value);
      QVERIFY2(previous.toLatin1() < name.toLatin1(), qPrintable(name));
      previous = name;
    }
    QCOMPARE(orq_get_icon_file_names(ORQ_ZOOM_TOOL_ICON), QStringList{":/icons/svg/orq_zoom_tool.svg"});
    QCOMPARE(orq_get_icon_file_names(ORQ_GENERIC_FILE_ICON), QStringList{":/icons/svg/orq_generic_file.svg"});
    QVERIFY(orq_get_icon_enum(QStringLiteral("ORQ_GRAY_X_ICON")) == ORQ_GRAY_X_ICON);
    QVERIFY(orq_get_icon_enum(QStringLiteral("ORQ_TREE_VIEW_FILTER_OPTION_ICON")) ==
            ORQ_TREE_VIEW_FILTER_OPTION_ICON);
  }

  void unknown_icons_are_null_not_errors()
  {
    for (int value : {0, 767, 1023}) {
      QVERIFY(orq_get_icon(icon_of(value)).isNull());
      QVERIFY(orq_get_icon_file_names(icon_of(value)).isEmpty());
    }
    QCOMPARE(int(orq_get_icon_enum(QStringLiteral("orq_zoom_tool_icon"))), 0);
    QCOMPARE(int(orq_get_icon_enum(QStringLiteral("ORQ_ZOOM_TOOL_ACTION"))), 0);
  }

  void icons_draw_like_the_svg_engine_in_every_mode()
  {
    // The catalogue defers reading its files; what it draws must be what an
    // icon made directly from the file draws, disabled look included.
    for (ORQ_ICON_ENUM icon : {ORQ_ZOOM_TOOL_ICON, ORQ_COPY_ICON, ORQ_GRAY_X_ICON, ORQ_STATUS_ICON}) {
      const QIcon direct(orq_get_icon_file_names(icon).first());
      const QIcon lazy = orq_get_icon(icon);
      for (QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
        QCOMPARE(lazy.pixmap(24, mode).toImage(), direct.pixmap(24, mode).toImage());
        QCOMPARE(lazy.actualSize(QSize(24, 24), mode), direct.actualSize(QSize(24, 24), mode));
      }
      QImage painted(32, 32, QImage::Format_ARGB32_Premultiplied);
      painted.fill(Qt::transparent);
      QPainter painter(&painted);
      lazy.paint(&painter, QRect(0, 0, 32, 32));
      painter.end();
      QVERIFY(opaque_pixels(painted) > 32);
    }
    QVERIFY(orq_get_icon(ORQ_COPY_ICON).pixmap(16, QIcon::Disabled).toImage() !=
            orq_get_icon(ORQ_COPY_ICON).pixmap(16).toImage());
  }

  void cursors_data()
  {
    QTest::addColumn<int>("cursor");
    QTest::addColumn<QPoint>("hot_spot");
    QTest::newRow("zoom in") << int(ORQ_ZOOM_IN_CURSOR) << QPoint(11, 11);
    QTest::newRow("zoom out") << int(ORQ_ZOOM_OUT_CURSOR) << QPoint(11, 11);
    QTest::newRow("clock assignment") << int(ORQ_CLOCK_ASSIGNMENT_CURSOR) << QPoint(0, 0);
    QTest::newRow("create region") << int(ORQ_CREATE_LL_REGION_CURSOR) << QPoint(0, 0);
    QTest::newRow("move") << int(ORQ_MOVE_CURSOR) << QPoint(8, 8);
    QTest::newRow("arrow") << int(ORQ_ARROW_CURSOR) << QPoint(8, 6);
    QTest::newRow("forbidden") << int(ORQ_FORBIDDEN_CURSOR) << QPoint(15, 15);
    QTest::newRow("arrow forbidden") << int(ORQ_ARROW_FORBIDDEN_CURSOR) << QPoint(4, 2);
    QTest::newRow("magnifying") << int(ORQ_MAGNIFYING_CURSOR) << QPoint(11, 11);
  }

  void cursors()
  {
    QFETCH(int, cursor);
    QFETCH(QPoint, hot_spot);
    const auto which = static_cast<ORQ_CURSOR_ENUM>(cursor);
    const QCursor made = orq_get_cursor(which);
    QCOMPARE(made.shape(), Qt::BitmapCursor);
    QCOMPARE(made.hotSpot(), hot_spot);
    const QImage bitmap = made.bitmap(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_Mono);
    const QImage mask = made.mask(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_Mono);
    QCOMPARE(bitmap.size(), QSize(32, 32));
    QCOMPARE(mask.size(), bitmap.size());
    QVERIFY(QFile::exists(orq_get_cursor_file_name(which, false)) &&
            QFile::exists(orq_get_cursor_file_name(which, true)));
    // Black pixels must lie inside the mask, or X11 draws them inverted, and
    // some of the cursor must show around the hot spot.
    int black = 0;
    int near_hot_spot = 0;
    for (int y = 0; y < 32; ++y) {
      for (int x = 0; x < 32; ++x) {
        const bool ink = bitmap.pixelIndex(x, y) == Qt::color1;
        const bool shown = mask.pixelIndex(x, y) == Qt::color1;
        QVERIFY2(!ink || shown, qPrintable(QStringLiteral("%1,%2").arg(x).arg(y)));
        black += ink ? 1 : 0;
        if (shown && qAbs(x - hot_spot.x()) <= 6 && qAbs(y - hot_spot.y()) <= 6)
          ++near_hot_spot;
      }
    }
    QVERIFY(black > 20);
    QVERIFY(near_hot_spot > 0);
  }

  void pixmaps_and_movies_load()
  {
    for (int value = 1; value <= 21; ++value) {
      const auto pixmap = static_cast<ORQ_PIXMAP_ENUM>(value);
      const QPixmap loaded = orq_get_pixmap(pixmap);
      QVERIFY2(!loaded.isNull(), qPrintable(orq_get_pixmap_file_name(pixmap)));
      QVERIFY(orq_get_pixmap_file_name(pixmap).startsWith(QLatin1String(":/pixmaps/orq_")));
    }
    QCOMPARE(orq_get_pixmap_file_name(ORQ_SPLASH_SCREEN_PIXMAP),
             QStringLiteral(":/pixmaps/orq_splash_screen.png"));
    QCOMPARE(orq_get_pixmap_file_name(ORQ_IP_UPGRADE_SCREENSHOT_PIXMAP),
             QStringLiteral(":/pixmaps/orq_ip_upgrade_screenshot.png"));
    for (ORQ_MOVIE_ENUM movie : {ORQ_IP_RGENWHEEL_MOVIE, ORQ_BUSY_SPINNER_MOVIE}) {
      std::unique_ptr<QMovie> animation(orq_get_movie(movie));
      QVERIFY(animation->isValid());
      QVERIFY(animation->frameCount() > 1);
      QSignalSpy frames(animation.get(), &QMovie::frameChanged);
      animation->start();
      QTRY_VERIFY(frames.count() >= 3);
      QVERIFY(!animation->currentImage().isNull());
    }
    QCOMPARE(orq_get_movie_file_name(ORQ_BUSY_SPINNER_MOVIE),
             QStringLiteral(":/movies/orq_busy_spinner.gif"));
  }

  void invalid_cursor_pixmap_and_movie_values_are_internal_errors_data()
  {
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("condition");
    for (int value : {0, 10})
      QTest::addRow("cursor %d", value) << 0 << value << QStringLiteral("Invalid cursor type");
    for (int value : {0, 22})
      QTest::addRow("pixmap %d", value) << 1 << value << QStringLiteral("Invalid pixmap type");
    for (int value : {0, 3})
      QTest::addRow("movie %d", value) << 2 << value << QStringLiteral("Invalid movie type");
  }

  void invalid_cursor_pixmap_and_movie_values_are_internal_errors()
  {
    QFETCH(int, kind);
    QFETCH(int, value);
    QFETCH(QString, condition);
    QCOMPARE(orq_test_internal_error([&] {
               if (kind == 0)
                 orq_get_cursor(static_cast<ORQ_CURSOR_ENUM>(value));
               else if (kind == 1)
                 orq_get_pixmap(static_cast<ORQ_PIXMAP_ENUM>(value));
               else
                 delete orq_get_movie(static_cast<ORQ_MOVIE_ENUM>(value));
             }),
             condition);
  }

  void file_types_show_their_editors_icons()
  {
    const QImage generic = orq_get_icon(ORQ_GENERIC_FILE_ICON).pixmap(16).toImage();
    QSet<uint> pictures;
    int own = 0;
    for (int value = FIO_UNKNOWN_FILE; value <= FIO_LAST_FILE_TYPE; ++value) {
      const QImage image = orq_get_file_type_icon(static_cast<FIO_FILE_TYPE>(value)).pixmap(16).toImage();
      if (image == generic)
        continue;
      ++own;
      pictures.insert(
          qHash(QByteArray(reinterpret_cast<const char*>(image.constBits()), int(image.sizeInBytes()))));
    }
    QCOMPARE(own, 26);
    QVERIFY(pictures.size() >= 20);
    QCOMPARE(orq_get_file_type_icon(FIO_UNKNOWN_FILE).pixmap(16).toImage(), generic);
    QCOMPARE(orq_get_file_type_icon(FIO_TEXT_FILE).pixmap(16).toImage(), generic);
    QCOMPARE(orq_get_file_type_icon(FIO_FLOORPLAN_FILE).pixmap(16).toImage(),
             orq_get_icon(ORQ_FLOORPLAN_FILE_ICON).pixmap(16).toImage());
  }
};

ORQ_TEST_REGISTER(TST_ICONS_IMAGES);
#include "tst_icons_images.moc"
