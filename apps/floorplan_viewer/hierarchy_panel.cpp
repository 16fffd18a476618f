#include "hierarchy_panel.h"

#include "design_hierarchy.h"

#include <orq_color.h>
#include <orq_line_edit_filter.h>
#include <orq_tree_filter_model.h>
#include <orq_tree_filter_proxy_model.h>
#include <orq_tree_view.h>

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLocale>
#include <QPainter>
#include <QSaveFile>
#include <QStandardItem>
#include <QStyledItemDelegate>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <sstream>

// Paints the rows that match the expression by themselves on the theme's
// keyword-highlight colour; rows kept only as the path to a match stay plain.
class MATCH_DELEGATE : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void set_expression(const QRegularExpression& expression) { m_expression = expression; }

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
  {
    if (!m_expression.pattern().isEmpty() && m_expression.isValid()) {
      const QString joined = index.siblingAtColumn(0).data().toString() + QLatin1Char(' ') +
                             index.siblingAtColumn(1).data().toString() + QLatin1Char(' ');
      if (m_expression.match(joined).hasMatch())
        painter->fillRect(option.rect, ORQ_COLOR(ORQ_MSW_KEYWORD_HIGHLIGHT_BKGND_COLOR).get_color());
    }
    QStyledItemDelegate::paint(painter, option, index);
  }

protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
  {
    QStyledItemDelegate::initStyleOption(option, index);
    // Areas line up by their decimal point; one alignment here costs less
    // than a role on every row.
    if (index.column() == 2)
      option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
  }

private:
  QRegularExpression m_expression;
};

const char* const HIERARCHY_PANEL::k_column_settings_name = "FloorplanViewerHierarchy";

HIERARCHY_PANEL::HIERARCHY_PANEL(int rows, unsigned seed, QWidget* parent)
    : QWidget(parent)
    , m_rows(rows)
    , m_model(new ORQ_TREE_FILTER_MODEL(this))
    , m_filter(new ORQ_LINE_EDIT_FILTER(this))
    , m_view(new ORQ_TREE_VIEW(this))
    , m_delegate(new MATCH_DELEGATE(this))
    , m_delay(new QTimer(this))
    , m_column_save(new QTimer(this))
{
  fill_design_hierarchy(*m_model, rows, seed);
  add_design_areas(*m_model);
  m_model->create_filter_model(0);
  // Instance names and cell types are searched together.
  m_model->insert_filter_column(0);
  m_model->insert_filter_column(1);
  m_proxy = m_model->get_filter_model();

  m_filter->setObjectName(QStringLiteral("hierarchy_filter"));
  m_filter->setPlaceholderText(QStringLiteral("Filter instances and cells"));
  m_view->setObjectName(QStringLiteral("hierarchy_view"));
  m_view->setModel(m_proxy);
  m_view->setItemDelegate(m_delegate);
  // A report, not an editor: a double click opens a row instead of
  // renaming the instance.
  m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_view->expandToDepth(1);
  // Named, not taken from the panel's object name, which the panel library
  // sets only after construction.
  m_view->set_column_visibility_registry_string(QString::fromLatin1(k_column_settings_name));
  m_view->load_column_visibility_from_registry();

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->addWidget(m_filter);
  layout->addWidget(m_view);

  // The library leaves the typing delay to the tool: one filter per pause.
  m_delay->setSingleShot(true);
  m_delay->setInterval(150);
  connect(m_filter, &QLineEdit::textChanged, m_delay, qOverload<>(&QTimer::start));
  connect(m_delay, &QTimer::timeout, this, &HIERARCHY_PANEL::run_filter);
  connect(m_proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_start, this, &HIERARCHY_PANEL::before_filter);
  connect(m_proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_content, this, [this](const QRegularExpression& expression) {
    m_delegate->set_expression(expression);
    m_view->viewport()->update();
  });
  connect(m_proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_done, this, [this] { show_result(true); });
  connect(m_proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_cancel, this, [this] { show_result(false); });
  connect(m_view, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
    if (m_filtered && !m_adjusting)
      m_closed_while_filtering.append(QPersistentModelIndex(m_proxy->mapToSource(index)));
  });
  connect(m_view, &QTreeView::expanded, this, [this](const QModelIndex& index) {
    if (m_filtered && !m_adjusting)
      m_closed_while_filtering.removeAll(QPersistentModelIndex(m_proxy->mapToSource(index)));
  });

  // A drag on the header resizes in many small steps: the settings are
  // written once it settles.
  m_column_save->setSingleShot(true);
  m_column_save->setInterval(300);
  connect(m_column_save, &QTimer::timeout, this, &HIERARCHY_PANEL::save_columns);
  connect(m_view->header(), &QHeaderView::sectionResized, m_column_save, qOverload<>(&QTimer::start));
  connect(m_view, &ORQ_TREE_VIEW::column_visibility_changed, m_column_save, qOverload<>(&QTimer::start));
}

HIERARCHY_PANEL::~HIERARCHY_PANEL()
{
  if (m_column_save->isActive())
    save_columns();
}

void HIERARCHY_PANEL::hideEvent(QHideEvent* event)
{
  // The window closing hides the panel before anything is torn down.
  if (m_column_save->isActive()) {
    m_column_save->stop();
    save_columns();
  }
  QWidget::hideEvent(event);
}

void HIERARCHY_PANEL::save_columns()
{
  m_view->save_column_visibility_to_registry();
}

void HIERARCHY_PANEL::filter_now(const QString& text)
{
  m_filter->setText(text);
  m_delay->stop();
  run_filter();
}

void HIERARCHY_PANEL::run_filter()
{
  m_proxy->start_filter(m_filter->text(), false, true);
}

void HIERARCHY_PANEL::before_filter()
{
  if (!m_filtered) {
    m_before_filter.save(m_view, m_proxy);
  } else {
    // Between two filters only the user moves the current row: a row picked
    // while filtering is where the cleared view should come back to.
    const QModelIndex current = m_proxy->mapToSource(m_view->currentIndex());
    if (current.isValid() && m_current_after_filter != current)
      m_before_filter.take_selection(m_view, m_proxy);
  }
  m_last_keystroke.take_selection(m_view, m_proxy);
}

void HIERARCHY_PANEL::show_result(bool filtered)
{
  m_adjusting = true;
  if (filtered) {
    m_view->expandAll();
    keep_user_collapsed();
    // A proxy that resets its rows on a large tree takes the selection with
    // it; the rows still shown get it back.
    if (!m_view->selectionModel()->hasSelection() || !m_view->currentIndex().isValid())
      m_last_keystroke.restore_selection(m_view, m_proxy);
    m_current_after_filter = m_proxy->mapToSource(m_view->currentIndex());
  } else if (!m_before_filter.is_empty()) {
    m_before_filter.restore(m_view, m_proxy);
    m_before_filter.clear();
    m_closed_while_filtering.clear();
    m_current_after_filter = QPersistentModelIndex();
  }
  m_adjusting = false;
  m_filtered = filtered;
  // The count grows as the view maps rows; expanding has mapped them all.
  emit status_changed(status_text());
}

void HIERARCHY_PANEL::keep_user_collapsed()
{
  for (const QPersistentModelIndex& closed : qAsConst(m_closed_while_filtering)) {
    const QModelIndex shown = m_proxy->mapFromSource(closed);
    if (shown.isValid())
      m_view->collapse(shown);
  }
}

QSize HIERARCHY_PANEL::sizeHint() const
{
  // Room for the three columns of a module row at their natural widths.
  return QSize(460, 600);
}

bool HIERARCHY_PANEL::dump(const QString& file_name) const
{
  QFile file(file_name);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
    return false;
  QTextStream out(&file);
  QList<QStandardItem*> open{m_model->invisibleRootItem()};
  while (!open.isEmpty()) {
    QStandardItem* parent = open.takeLast();
    for (int row = parent->rowCount() - 1; row >= 0; --row) {
      out << parent->child(row, 0)->text() << '\t' << parent->child(row, 1)->text() << '\n';
      open << parent->child(row, 0);
    }
  }
  return true;
}

QString HIERARCHY_PANEL::export_hierarchy(const QString& file_name)
{
  // The whole text first, then one write of a temporary file that replaces
  // the old one only when complete: a full disk or a wrong directory leaves
  // whatever was there.
  std::ostringstream text;
  if (!m_view->dump_tree_view_data(QModelIndex(), text, 0))
    return QStringLiteral("Cannot write %1: the hierarchy could not be dumped")
        .arg(QDir::toNativeSeparators(file_name));
  const std::string bytes = text.str();
  QSaveFile file(file_name);
  if (!file.open(QIODevice::WriteOnly) ||
      file.write(bytes.data(), qint64(bytes.size())) != qint64(bytes.size()) || !file.commit())
    return QStringLiteral("Cannot write %1: %2").arg(QDir::toNativeSeparators(file_name), file.errorString());
  return QString();
}

QString HIERARCHY_PANEL::column_text() const
{
  QStringList parts;
  for (int c = 0; c < m_view->header()->count(); ++c) {
    const QString name = m_proxy->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
    parts << (m_view->isColumnHidden(c) ? name + QStringLiteral(" hidden")
                                        : QStringLiteral("%1 %2").arg(name).arg(m_view->columnWidth(c)));
  }
  return parts.join(QStringLiteral(", "));
}

QString HIERARCHY_PANEL::view_state_text() const
{
  HIERARCHY_STATE shown;
  shown.save(m_view, m_proxy);
  QStringList expanded = shown.expanded_paths().values();
  std::sort(expanded.begin(), expanded.end());
  QStringList selected;
  for (const QModelIndex& row : m_view->selectionModel()->selectedRows())
    selected << HIERARCHY_STATE::path_of(m_model->itemFromIndex(m_proxy->mapToSource(row)));
  std::sort(selected.begin(), selected.end());
  const QModelIndex current = m_proxy->mapToSource(m_view->currentIndex());
  return QStringLiteral("expanded: %1\nselected: %2\ncurrent: %3")
      .arg(expanded.join(QStringLiteral("; ")), selected.join(QStringLiteral("; ")),
           current.isValid() ? HIERARCHY_STATE::path_of(m_model->itemFromIndex(current)) : QString());
}

QString HIERARCHY_PANEL::status_text() const
{
  const QLocale locale(QLocale::English);
  QString text = QStringLiteral("Hierarchy: %1 rows").arg(locale.toString(m_rows));
  if (m_filtered)
    text += QStringLiteral(" | %1 matches").arg(locale.toString(m_proxy->get_search_result_count()));
  return text;
}
