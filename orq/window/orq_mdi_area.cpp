#include "orq_mdi_area.h"

#include "orq_color.h"
#include "orq_images.h"
#include "orq_safe_connect.h"

#include "gen_config_vars.h"
#include "gen_message_service.h"
#include "gen_settings.h"
#include "gen_web_locator.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QTabBar>

namespace {
// The settings group and value that keep the user's choice of tabs.
constexpr int kMdiTabsGroup = 2;
const char kMdiTabsName[] = "mdi_tabs";

// The suite's web pages behind the pictures.
constexpr int kBulletinPage = 5;
constexpr int kDocumentationPage = 11;
constexpr int kNotificationCenterPage = 12;

// The banner that the bulletin picture itself answers to; web banners the
// suite may add later take the numbers after it.
constexpr int kBulletinBannerNumber = 1;

// Room between the watermark and the corner of the document area.
constexpr int kWatermarkMargin = 10;

const QString kModifiedMarker = QStringLiteral("[*]");

QTabBar* tab_bar_of(const QMdiArea* area)
{
  // Only the area's own bar: a document may hold tab bars of its own.
  return area->findChild<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
}

// The text QMdiArea gives a sub-window's tab.
QString tab_title(const QMdiSubWindow* sub)
{
  QString title = sub->windowTitle();
  title.remove(kModifiedMarker);
  if (sub->isWindowModified())
    title += QLatin1Char('*');
  return title;
}

ORQ_PIXMAP_ENUM bulletin_pixmap(int kind)
{
  switch (kind) {
  case 1:
    return ORQ_UPDATE_READY_PIXMAP;
  case 2:
    return ORQ_UPDATE_FAILED_PIXMAP;
  case 3:
    return ORQ_UPDATE_SETTINGS_PIXMAP;
  case 4:
    return ORQ_UPDATE_DOWNLOADING_PIXMAP;
  case 5:
    return ORQ_UPDATE_INSTALLED_PIXMAP;
  default:
    return ORQ_UPDATE_AVAILABLE_PIXMAP;
  }
}
} // namespace

// A picture that answers a left press; a QLabel has no signal for it.
class ORQ_MDI_CLICKABLE_LABEL : public QLabel {
  Q_OBJECT
public:
  ORQ_MDI_CLICKABLE_LABEL(const QPixmap& pixmap, const QString& name, const QString& accessible_name,
                          QWidget* parent)
      : QLabel(parent)
  {
    setObjectName(name);
    setAccessibleName(accessible_name);
    setPixmap(pixmap);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }

signals:
  void pressed();

protected:
  void mousePressEvent(QMouseEvent* event) override
  {
    if (event->button() == Qt::LeftButton) {
      event->accept();
      emit pressed();
      return;
    }
    QLabel::mousePressEvent(event);
  }
  // The press did the work; its release belongs to the picture too.
  void mouseReleaseEvent(QMouseEvent* event) override
  {
    if (event->button() == Qt::LeftButton) {
      event->accept();
      return;
    }
    QLabel::mouseReleaseEvent(event);
  }
};

ORQ_MDI_AREA::ORQ_MDI_AREA(QWidget* parent)
    : QMdiArea(parent)
    , m_watermark_pixmap(orq_get_pixmap(ORQ_MDI_WATERMARK_PIXMAP))
{
  // No theme colour is set aside for the document area; the window
  // background colour is what users already tune for empty space.
  setBackground(QBrush(ORQ_COLOR(ORQ_WINDOW_BACKGROUND_COLOR).get_color()));
  if (gen_config_vars().get_bool(QStringLiteral("show_beta_background"), false)) {
    m_background_pixmap = QPixmap(QStringLiteral(":icons/orq_beta.png"));
    setBackground(QBrush(m_background_pixmap));
  }
  set_tabs();

  // The layout lives on the viewport so the pictures stay in its lower
  // right corner whatever its size; sub-windows are not in the layout.
  auto* overlay = new QVBoxLayout(viewport());
  // The viewport's size is the scroll area's to set; the pictures must not
  // hold it open.
  overlay->setSizeConstraint(QLayout::SetNoConstraint);
  overlay->addStretch();
  auto* row = new QHBoxLayout;
  overlay->addLayout(row);
  row->addStretch();
  auto* column = new QVBoxLayout;
  row->addLayout(column);

  auto* bulletin =
      new ORQ_MDI_CLICKABLE_LABEL(orq_get_pixmap(ORQ_UPDATE_AVAILABLE_PIXMAP),
                                  QStringLiteral("bulletin_banner"), QStringLiteral("Bulletin"), viewport());
  auto* documentation = new ORQ_MDI_CLICKABLE_LABEL(orq_get_pixmap(ORQ_DOCUMENTATION_URL_PIXMAP),
                                                    QStringLiteral("documentation_image"),
                                                    QStringLiteral("Documentation"), viewport());
  auto* notification = new ORQ_MDI_CLICKABLE_LABEL(orq_get_pixmap(ORQ_NOTIFICATION_CENTER_PIXMAP),
                                                   QStringLiteral("notification_center_image"),
                                                   QStringLiteral("Notification Center"), viewport());
  column->addWidget(bulletin, 0, Qt::AlignRight);
  column->addWidget(documentation, 0, Qt::AlignRight);
  column->addWidget(notification, 0, Qt::AlignRight);
  m_banner_labels.insert(kBulletinBannerNumber, bulletin);

  ORQ_SAFE_CONNECT(bulletin, SIGNAL(pressed()), this, SLOT(on_bulletin_pressed()));
  ORQ_SAFE_CONNECT(documentation, SIGNAL(pressed()), this, SLOT(on_documentation_pressed()));
  ORQ_SAFE_CONNECT(notification, SIGNAL(pressed()), this, SLOT(on_notification_center_pressed()));
}

ORQ_MDI_AREA::~ORQ_MDI_AREA() = default;

void ORQ_MDI_AREA::set_tabs()
{
  bool tabs = true;
  gen_settings().get_group_bool(kMdiTabsGroup, QLatin1String(kMdiTabsName), &tabs);
  if (!tabs) {
    setViewMode(QMdiArea::SubWindowView);
    return;
  }
  setViewMode(QMdiArea::TabbedView);
  setTabsClosable(true);
  setTabsMovable(true);
  QTabBar* bar = tab_bar_of(this);
  if (!bar)
    return;
  bar->setElideMode(Qt::ElideNone);
  bar->setDocumentMode(true);
  bar->setExpanding(false);
  // QMdiArea closes the tab's sub-window itself; every close must go
  // through close_tab alone, or a document could be asked twice. Dropping
  // every connection of ours first also keeps a second call from doubling.
  QObject::disconnect(bar, SIGNAL(tabCloseRequested(int)), this, nullptr);
  ORQ_SAFE_CONNECT(bar, SIGNAL(tabCloseRequested(int)), this, SLOT(close_tab(int)));
}

void ORQ_MDI_AREA::close_tab(int index)
{
  QTabBar* bar = tab_bar_of(this);
  if (!bar || index < 0 || index >= bar->count())
    return;
  const QString text = bar->tabText(index);
  // Tabs carry only titles, so the first document of that title is the
  // one meant, as the user sees the tabs in creation order.
  const QList<QMdiSubWindow*> subs = subWindowList(QMdiArea::CreationOrder);
  for (QMdiSubWindow* sub : subs) {
    if (tab_title(sub) == text) {
      sub->close();
      return;
    }
  }
}

void ORQ_MDI_AREA::update_tab_tooltip(const QString& title, const QString& tooltip)
{
  QTabBar* bar = tab_bar_of(this);
  QString wanted = title;
  wanted.remove(kModifiedMarker);
  QString tip = tooltip;
  tip = tip.remove(kModifiedMarker).trimmed();
  if (!bar || wanted.isEmpty())
    return;
  for (int i = 0; i < bar->count(); ++i) {
    // Setting an unchanged tip would still lay the tab bar out again.
    if (bar->tabText(i) == wanted && bar->tabToolTip(i) != tip)
      bar->setTabToolTip(i, tip);
  }
}

void ORQ_MDI_AREA::update_tab_tooltips()
{
  QTabBar* bar = tab_bar_of(this);
  if (!bar)
    return;
  // QMdiArea keeps its tabs in the order of this list, moves included.
  const QList<QMdiSubWindow*> subs = subWindowList(QMdiArea::CreationOrder);
  const int count = qMin(bar->count(), subs.size());
  for (int i = 0; i < count; ++i) {
    QMdiSubWindow* sub = subs.at(i);
    QString tip = sub->toolTip();
    if (tip.isEmpty() && sub->widget())
      tip = sub->widget()->toolTip();
    tip = tip.remove(kModifiedMarker).trimmed();
    if (bar->tabToolTip(i) != tip)
      bar->setTabToolTip(i, tip);
  }
}

void ORQ_MDI_AREA::redraw_bulletin_bitmap(int bitmap)
{
  QLabel* label = m_banner_labels.value(kBulletinBannerNumber);
  if (label)
    label->setPixmap(orq_get_pixmap(bulletin_pixmap(bitmap)));
}

void ORQ_MDI_AREA::show_bulletin_web_bitmap(bool hidden, const QString& file, int number)
{
  gen_message_service().debug_log(QStringLiteral("ORQ"),
                                  QStringLiteral("Showing web bitmap #") + QString::number(number));
  if (hidden)
    return;
  QLabel* label = m_banner_labels.value(number);
  if (!label)
    return;
  // A download that is cut short or not a picture keeps what was shown.
  const QPixmap pixmap(file);
  if (pixmap.isNull())
    return;
  label->setPixmap(pixmap);
}

void ORQ_MDI_AREA::on_documentation_pressed()
{
  gen_web_locator().open_page(kDocumentationPage);
}

void ORQ_MDI_AREA::on_notification_center_pressed()
{
  gen_web_locator().open_page(kNotificationCenterPage);
}

void ORQ_MDI_AREA::on_bulletin_pressed()
{
  gen_web_locator().open_page(kBulletinPage);
}

void ORQ_MDI_AREA::on_web_bitmap_pressed()
{
  // A web banner stands in for the bulletin, so it leads to the same page.
  gen_web_locator().open_page(kBulletinPage);
}

void ORQ_MDI_AREA::paintEvent(QPaintEvent* event)
{
  // Deliberately after QMdiArea paints, not before: the base class fills
  // what is exposed with the background brush and would paint the
  // watermark over.
  QMdiArea::paintEvent(event);
  if (m_watermark_pixmap.isNull())
    return;
  QPainter painter(viewport());
  const QPoint corner(kWatermarkMargin,
                      viewport()->height() - m_watermark_pixmap.height() - kWatermarkMargin);
  painter.drawPixmap(corner, m_watermark_pixmap);
}

#include "orq_mdi_area.moc"
