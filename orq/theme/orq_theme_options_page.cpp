#include "orq_theme_options_page.h"

#include "orq_color.h"
#include "orq_font.h"
#include "orq_pen.h"
#include "orq_theme_p.h"
#include "orq_theme_tables_p.h"

#include "gen_settings.h"

#include <QColorDialog>
#include <QFontDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
constexpr int k_resource_role = Qt::UserRole + 1;

QIcon swatch(const QColor& colour)
{
  QPixmap pixmap(16, 16);
  pixmap.fill(colour);
  QPainter painter(&pixmap);
  painter.setPen(QColor(0, 0, 0, 96));
  painter.drawRect(0, 0, 15, 15);
  return QIcon(pixmap);
}

QString describe(const QFont& font)
{
  QString text = QStringLiteral("%1, %2 pt").arg(font.family()).arg(font.pointSize());
  if (font.bold())
    text += QStringLiteral(", bold");
  if (font.italic())
    text += QStringLiteral(", italic");
  if (font.underline())
    text += QStringLiteral(", underline");
  return text;
}

QTreeWidget* make_list(QWidget* parent, const QString& value_header)
{
  auto* list = new QTreeWidget(parent);
  list->setRootIsDecorated(false);
  list->setUniformRowHeights(false);
  list->setHeaderLabels({QStringLiteral("Name"), value_header});
  list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  list->setAlternatingRowColors(true);
  return list;
}
}  // namespace

ORQ_THEME_OPTIONS_PAGE::ORQ_THEME_OPTIONS_PAGE(QWidget* parent)
    : QWidget(parent)
    , m_tabs(new QTabWidget(this))
    , m_colors(make_list(this, QStringLiteral("Color")))
    , m_fonts(make_list(this, QStringLiteral("Font")))
    , m_filter(new QLineEdit(this))
    , m_change(new QPushButton(QStringLiteral("&Change..."), this))
    , m_reset(new QPushButton(QStringLiteral("&Reset"), this))
    , m_reset_all(new QPushButton(QStringLiteral("Reset &All"), this))
{
  setObjectName(QStringLiteral("orq_theme_options_page"));
  m_colors->setObjectName(QStringLiteral("orq_theme_color_list"));
  m_fonts->setObjectName(QStringLiteral("orq_theme_font_list"));
  m_filter->setPlaceholderText(QStringLiteral("Filter"));
  m_tabs->addTab(m_colors, QStringLiteral("Colors"));
  m_tabs->addTab(m_fonts, QStringLiteral("Fonts"));

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(m_filter, 1);
  buttons->addWidget(m_change);
  buttons->addWidget(m_reset);
  buttons->addWidget(m_reset_all);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(m_tabs);
  layout->addLayout(buttons);

  connect(m_change, &QPushButton::clicked, this, &ORQ_THEME_OPTIONS_PAGE::change_current);
  connect(m_reset, &QPushButton::clicked, this, &ORQ_THEME_OPTIONS_PAGE::reset_current);
  connect(m_reset_all, &QPushButton::clicked, this, &ORQ_THEME_OPTIONS_PAGE::reset_all);
  connect(m_filter, &QLineEdit::textChanged, this, &ORQ_THEME_OPTIONS_PAGE::set_filter);
  connect(m_colors, &QTreeWidget::itemActivated, this, &ORQ_THEME_OPTIONS_PAGE::change_current);
  connect(m_fonts, &QTreeWidget::itemActivated, this, &ORQ_THEME_OPTIONS_PAGE::change_current);
  fill();
}

ORQ_THEME_OPTIONS_PAGE::~ORQ_THEME_OPTIONS_PAGE() = default;

QString ORQ_THEME_OPTIONS_PAGE::display_name(const QString& resource_name)
{
  QString name = resource_name;
  if (name.startsWith(QLatin1String("ORQ_")))
    name.remove(0, 4);
  for (const char* kind : {"_COLOR", "_FONT", "_PEN"})
    if (name.endsWith(QLatin1String(kind))) {
      name.chop(int(qstrlen(kind)));
      break;
    }
  QStringList words = name.split(QLatin1Char('_'), Qt::SkipEmptyParts);
  QString group;
  if (words.size() > 1 && words.first().size() <= 5 && words.first() != QLatin1String("GUI")) {
    group = words.takeFirst();
  }
  for (QString& word : words)
    word = word.left(1) + word.mid(1).toLower();
  const QString rest = words.join(QLatin1Char(' '));
  return group.isEmpty() ? rest : group + QStringLiteral(": ") + rest;
}

void ORQ_THEME_OPTIONS_PAGE::fill()
{
  ORQ_GDI_MANAGER* mgr = orq_gdi_mgr();
  for (int i = 0; i < orq_color_table_size; ++i) {
    const ORQ_COLOR_ENTRY& e = orq_color_table[i];
    const ORQ_COLOR_DATA* data = mgr->get_color_data(e.id);
    if (!data->m_changeable || data->m_system)
      continue;
    auto* item = new QTreeWidgetItem(m_colors, {display_name(data->m_name)});
    item->setData(0, k_resource_role, int(e.id));
    item->setToolTip(0, data->m_name);
    m_saved_colors.insert(e.id, data->m_color);
    update_color_item(item);
  }
  for (int i = 0; i < orq_font_table_size; ++i) {
    const ORQ_FONT_ENTRY& e = orq_font_table[i];
    const ORQ_FONT_DATA* data = mgr->get_font_data(e.id);
    if (!data->m_changeable)
      continue;
    auto* item = new QTreeWidgetItem(m_fonts, {display_name(data->m_name)});
    item->setData(0, k_resource_role, int(e.id));
    item->setToolTip(0, data->m_name);
    m_saved_fonts.insert(e.id, SAVED_FONT{data->m_text_color, data->m_background_color, data->m_font, data->m_flag});
    update_font_item(item);
  }
  m_colors->setCurrentItem(m_colors->topLevelItem(0));
  m_fonts->setCurrentItem(m_fonts->topLevelItem(0));
}

void ORQ_THEME_OPTIONS_PAGE::update_color_item(QTreeWidgetItem* item)
{
  const auto id = ORQ_COLOR_RESOURCE(item->data(0, k_resource_role).toInt());
  const ORQ_COLOR_DATA* data = orq_gdi_mgr()->get_color_data(id);
  item->setIcon(1, swatch(data->m_color));
  item->setText(1, data->m_color.name());
  QFont font = item->font(0);
  font.setBold(data->m_color != data->m_default_color);  // changed rows stand out
  item->setFont(0, font);
}

void ORQ_THEME_OPTIONS_PAGE::update_font_item(QTreeWidgetItem* item)
{
  const auto id = ORQ_FONT_RESOURCE(item->data(0, k_resource_role).toInt());
  const ORQ_FONT_DATA* data = orq_gdi_mgr()->get_font_data(id);
  item->setText(1, describe(data->m_font));
  item->setFont(1, data->m_font);
  QFont font = item->font(0);
  font.setBold(data->m_flag != 0);
  item->setFont(0, font);
}

QTreeWidget* ORQ_THEME_OPTIONS_PAGE::current_list() const
{
  return m_tabs->currentWidget() == m_fonts ? m_fonts : m_colors;
}

QTreeWidgetItem* ORQ_THEME_OPTIONS_PAGE::current_item(QTreeWidget** list, int* id) const
{
  *list = current_list();
  QTreeWidgetItem* item = (*list)->currentItem();
  if (item)
    *id = item->data(0, k_resource_role).toInt();
  return item;
}

void ORQ_THEME_OPTIONS_PAGE::change_current()
{
  QTreeWidget* list = nullptr;
  int id = 0;
  QTreeWidgetItem* item = current_item(&list, &id);
  if (!item)
    return;
  if (list == m_colors) {
    const QColor before = ORQ_COLOR::get_default_color(ORQ_COLOR_RESOURCE(id));
    const QColor chosen = QColorDialog::getColor(before, this, item->text(0), QColorDialog::DontUseNativeDialog);
    if (!chosen.isValid() || chosen == before)
      return;
    ORQ_COLOR::set_default_color(ORQ_COLOR_RESOURCE(id), chosen);
    ORQ_COLOR::refresh_pen_and_brush_colors();
    update_color_item(item);
  } else {
    ORQ_FONT font = ORQ_FONT::get_default_font(ORQ_FONT_RESOURCE(id));
    bool ok = false;
    const QFont chosen = QFontDialog::getFont(&ok, font.get_font(), this, item->text(0),
                                             QFontDialog::DontUseNativeDialog);
    if (!ok)
      return;
    font.set_font(font.get_text_color(), font.get_background_color(), chosen.family(),
                  chosen.pointSize() > 0 ? chosen.pointSize() : font.get_point_size(), chosen.bold(),
                  chosen.italic());
    ORQ_FONT::set_default_font(ORQ_FONT_RESOURCE(id), &font);
    update_font_item(item);
  }
  emit theme_changed();
}

void ORQ_THEME_OPTIONS_PAGE::reset_current()
{
  QTreeWidget* list = nullptr;
  int id = 0;
  QTreeWidgetItem* item = current_item(&list, &id);
  if (!item)
    return;
  if (list == m_colors) {
    ORQ_COLOR::reset_colors({ORQ_COLOR_RESOURCE(id)});
    ORQ_COLOR::refresh_pen_and_brush_colors();
    update_color_item(item);
  } else {
    ORQ_FONT::reset_fonts({ORQ_FONT_RESOURCE(id)});
    update_font_item(item);
  }
  emit theme_changed();
}

void ORQ_THEME_OPTIONS_PAGE::reset_all()
{
  QTreeWidget* list = current_list();
  std::set<ORQ_COLOR_RESOURCE> colors;
  std::set<ORQ_FONT_RESOURCE> fonts;
  for (int i = 0; i < list->topLevelItemCount(); ++i) {
    const int id = list->topLevelItem(i)->data(0, k_resource_role).toInt();
    if (list == m_colors)
      colors.insert(ORQ_COLOR_RESOURCE(id));
    else
      fonts.insert(ORQ_FONT_RESOURCE(id));
  }
  if (!colors.empty()) {
    ORQ_COLOR::reset_colors(colors);
    ORQ_COLOR::refresh_pen_and_brush_colors();
  }
  if (!fonts.empty())
    ORQ_FONT::reset_fonts(fonts);
  for (int i = 0; i < list->topLevelItemCount(); ++i)
    list == m_colors ? update_color_item(list->topLevelItem(i)) : update_font_item(list->topLevelItem(i));
  emit theme_changed();
}

void ORQ_THEME_OPTIONS_PAGE::set_filter(const QString& text)
{
  for (QTreeWidget* list : {m_colors, m_fonts})
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
      QTreeWidgetItem* item = list->topLevelItem(i);
      item->setHidden(!text.isEmpty() && !item->text(0).contains(text, Qt::CaseInsensitive)
                      && !item->toolTip(0).contains(text, Qt::CaseInsensitive));
    }
}

void ORQ_THEME_OPTIONS_PAGE::apply()
{
  ORQ_COLOR::save_colors_in_registry();
  ORQ_PEN::save_pens_in_registry();
  ORQ_FONT::save_fonts_in_registry();
  gen_settings().sync();
}

void ORQ_THEME_OPTIONS_PAGE::revert()
{
  ORQ_GDI_MANAGER* mgr = orq_gdi_mgr();
  for (auto it = m_saved_colors.cbegin(); it != m_saved_colors.cend(); ++it)
    mgr->set_color(ORQ_COLOR_RESOURCE(it.key()), it.value());
  for (auto it = m_saved_fonts.cbegin(); it != m_saved_fonts.cend(); ++it) {
    mgr->set_font(ORQ_FONT_RESOURCE(it.key()), ORQ_COLOR_RESOURCE(it->text), ORQ_COLOR_RESOURCE(it->background),
                  it->font);
    if (it->flag == 0)
      mgr->reset_fonts({ORQ_FONT_RESOURCE(it.key())});  // it was the built-in font
  }
  mgr->refresh_pen_and_brush_colors();
  for (int i = 0; i < m_colors->topLevelItemCount(); ++i)
    update_color_item(m_colors->topLevelItem(i));
  for (int i = 0; i < m_fonts->topLevelItemCount(); ++i)
    update_font_item(m_fonts->topLevelItem(i));
  emit theme_changed();
}

QTreeWidget* ORQ_THEME_OPTIONS_PAGE::get_color_list() const { return m_colors; }
QTreeWidget* ORQ_THEME_OPTIONS_PAGE::get_font_list() const { return m_fonts; }
QTabWidget* ORQ_THEME_OPTIONS_PAGE::get_tabs() const { return m_tabs; }
