#include "orq_tree_view.h"

#include "orq_require_p.h"

#include "gen_settings.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLoggingCategory>
#include <QMenu>
#include <QStandardItemModel>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// Local to this file so that other tree sources may declare their own
// function for the same category without a clash at link time.
Q_LOGGING_CATEGORY(orq_tree_view_log, "orq.tree")

// Every view keeps its column settings under this one section.
const QString k_column_settings_root = QStringLiteral("TreeViewColumns");
const QString k_visibility_suffix = QStringLiteral("_column_visibility");
const QString k_size_suffix = QStringLiteral("_column_size");
// Wider than any screen; a larger stored width is damage, not a choice.
constexpr int k_max_column_width = 100000;

// The registry gives back what it read from the file as text, and what was
// set in this session with its own type; both are accepted.
bool stored_bool(const QVariant& variant, bool* value)
{
  if (variant.type() == QVariant::Bool) {
    *value = variant.toBool();
    return true;
  }
  if (variant.type() != QVariant::String)
    return false;
  const QString text = variant.toString().trimmed().toLower();
  if (text == QLatin1String("true") || text == QLatin1String("1")) {
    *value = true;
    return true;
  }
  if (text == QLatin1String("false") || text == QLatin1String("0")) {
    *value = false;
    return true;
  }
  return false;
}

bool stored_width(const QVariant& variant, int* value)
{
  bool ok = false;
  int width = 0;
  switch (variant.type()) {
  case QVariant::Int:
  case QVariant::UInt:
  case QVariant::LongLong:
  case QVariant::ULongLong: {
    const qlonglong wide = variant.toLongLong(&ok);
    ok = ok && wide >= 0 && wide <= k_max_column_width;
    width = int(wide);
    break;
  }
  case QVariant::String:
    width = variant.toString().trimmed().toInt(&ok);
    break;
  default:
    break;
  }
  if (!ok || width < 0 || width > k_max_column_width)
    return false;
  *value = width;
  return true;
}

// Rows above index top-level first, for ordering a selection as it is shown.
std::vector<int> row_path(const QModelIndex& index)
{
  std::vector<int> path;
  for (QModelIndex at = index; at.isValid(); at = at.parent())
    path.push_back(at.row());
  std::reverse(path.begin(), path.end());
  return path;
}

} // namespace

ORQ_TREE_VIEW::ORQ_TREE_VIEW(QWidget* parent)
    : QTreeView(parent)
{
  // Reports run to many thousands of rows of one line each; a tool whose
  // rows differ in height turns this off.
  setUniformRowHeights(true);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setAllColumnsShowFocus(true);
  header()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header(), &QWidget::customContextMenuRequested, this, &ORQ_TREE_VIEW::show_column_selection_menu);
}

ORQ_TREE_VIEW::~ORQ_TREE_VIEW() = default;

QString ORQ_TREE_VIEW::get_path(const QModelIndex& index)
{
  auto* standard = qobject_cast<QStandardItemModel*>(model());
  if (!standard)
    return index.data(Qt::DisplayRole).toString();
  const QStandardItem* item = standard->itemFromIndex(index);
  if (!item)
    return QString();
  QStringList parts{item->data(Qt::DisplayRole).toString()};
  for (const QStandardItem* up = item->parent(); up; up = up->parent())
    parts.prepend(up->data(Qt::DisplayRole).toString());
  return parts.join(QStringLiteral("||"));
}

QString ORQ_TREE_VIEW::get_path(QStandardItem* item)
{
  if (!item || !qobject_cast<QStandardItemModel*>(model()))
    return QString();
  return get_path(item->index());
}

void ORQ_TREE_VIEW::save_expandable_state(bool clear)
{
  QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  // Deliberate: clear applies before each top-level row, so only the last subtree stays remembered.
  for (int r = 0; r < view_model->rowCount(); ++r)
    save_expandable_state(view_model->index(r, 0), clear);
}

void ORQ_TREE_VIEW::save_expandable_state(const QModelIndex& index, bool clear)
{
  QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  if (clear) {
    m_expansion_memory.clear();
    m_check_state_memory.clear();
  }
  if (qobject_cast<QStandardItemModel*>(view_model) && index.isValid()) {
    remember_row(index);
    return;
  }
  // Without item paths only the rows below index are remembered, not index
  // itself: its own text alone would be too weak a key for a top-level row.
  for (int r = 0; r < view_model->rowCount(index); ++r) {
    const QModelIndex item_index = view_model->index(r, 0, index);
    ORQ_REQUIRE(item_index.isValid());
    remember_row(item_index);
  }
}

void ORQ_TREE_VIEW::save_expandable_state(QStandardItem* item, bool clear)
{
  QModelIndex index;
  if (item && qobject_cast<QStandardItemModel*>(model()))
    index = item->index();
  save_expandable_state(index, clear);
}

void ORQ_TREE_VIEW::remember_row(const QModelIndex& row)
{
  QAbstractItemModel* view_model = model();
  const QString path = get_path(row);
  if (row.isValid()) {
    const int children = view_model->rowCount(row);
    // Deliberate: a leaf counts as expanded, so that it opens once it gains children.
    m_expansion_memory.insert(path, children == 0 ? true : isExpanded(row));
    if (m_check_state_switch) {
      const int state = row.data(Qt::CheckStateRole).toInt();
      m_check_state_memory.insert(path, state == Qt::Checked ? 2 : state != 0 ? 1 : 0);
    }
  }
  for (int r = 0; r < view_model->rowCount(row); ++r)
    remember_row(view_model->index(r, 0, row));
}

bool ORQ_TREE_VIEW::restore_expandable_state()
{
  QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  if (view_model->rowCount() == 0)
    return false;
  return restore_expandable_state(QModelIndex());
}

bool ORQ_TREE_VIEW::restore_expandable_state(const QModelIndex& index)
{
  QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  if (!index.isValid()) {
    for (int r = 0; r < view_model->rowCount(); ++r)
      restore_expandable_state(view_model->index(r, 0));
  } else if (qobject_cast<QStandardItemModel*>(view_model)) {
    // restore_row visits the whole subtree; going over the child rows a
    // second time would set the very same states.
    restore_row(index);
  } else {
    // Without item paths a row's text is its key, and keys below it would
    // be ambiguous: only the row itself is set.
    setExpanded(index, m_expansion_memory.value(index.data(Qt::DisplayRole).toString(), false));
  }
  return !m_expansion_memory.isEmpty();
}

void ORQ_TREE_VIEW::restore_row(const QModelIndex& row)
{
  QAbstractItemModel* view_model = model();
  setExpanded(row, m_expansion_memory.value(get_path(row), false));
  // Deliberate: restored rows become partially checked; the saved states are a record, not put back.
  if (m_check_state_switch)
    view_model->setData(row, int(Qt::PartiallyChecked), Qt::CheckStateRole);
  for (int r = 0; r < view_model->rowCount(row); ++r)
    restore_row(view_model->index(r, 0, row));
}

bool ORQ_TREE_VIEW::was_item_expanded_previously(const QModelIndex& index)
{
  if (!index.isValid())
    return false;
  return m_expansion_memory.value(get_path(index), false);
}

void ORQ_TREE_VIEW::set_remember_check_states(bool remember)
{
  m_check_state_switch = remember;
}

bool ORQ_TREE_VIEW::remembers_check_states() const
{
  return m_check_state_switch;
}

const QMap<QString, bool>& ORQ_TREE_VIEW::expansion_memory() const
{
  return m_expansion_memory;
}

const QMap<QString, int>& ORQ_TREE_VIEW::check_state_memory() const
{
  return m_check_state_memory;
}

void ORQ_TREE_VIEW::set_column_always_hidden(int column, bool always_hidden)
{
  if (column < 0)
    return;
  if (column >= m_always_hidden_columns.size())
    m_always_hidden_columns.resize(column + 1);
  m_always_hidden_columns.setBit(column, always_hidden);
  if (always_hidden)
    setColumnHidden(column, true);
}

bool ORQ_TREE_VIEW::is_column_always_hidden(int column) const
{
  return column >= 0 && column < m_always_hidden_columns.size() && m_always_hidden_columns.testBit(column);
}

void ORQ_TREE_VIEW::set_column_visibility_registry_string(const QString& registry_string)
{
  m_registry_string = registry_string;
}

QString ORQ_TREE_VIEW::column_visibility_registry_string() const
{
  return m_registry_string;
}

QString ORQ_TREE_VIEW::registry_key() const
{
  const QString registry_string =
      m_registry_string.isEmpty() ? parentWidget()->objectName() : m_registry_string;
  ORQ_REQUIRE(!registry_string.isEmpty());
  return k_column_settings_root + QLatin1Char('/') + registry_string;
}

void ORQ_TREE_VIEW::save_column_visibility_to_registry()
{
  if (!parentWidget())
    return;
  const QString key = registry_key();
  QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  GEN_SETTINGS& settings = gen_settings();
  for (int c = 0; c < header()->count(); ++c) {
    const QString name = view_model->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
    // Deliberate: "_column_visibility" holds true for hidden, as settings files already hold it.
    settings.set_value(key, name + k_visibility_suffix, isColumnHidden(c));
    settings.set_value(key, name + k_size_suffix, columnWidth(c));
  }
  settings.sync();
}

void ORQ_TREE_VIEW::load_column_visibility_from_registry()
{
  if (!parentWidget())
    return;
  const QString key = registry_key();
  QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  const GEN_SETTINGS& settings = gen_settings();
  for (int c = 0; c < header()->count(); ++c) {
    const QString name = view_model->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
    const QString visibility_name = name + k_visibility_suffix;
    if (settings.contains(key, visibility_name)) {
      const QVariant variant = settings.value(key, visibility_name);
      ORQ_REQUIRE(variant.isValid());
      bool hidden = false;
      if (stored_bool(variant, &hidden))
        setColumnHidden(c, hidden || is_column_always_hidden(c));
      else
        qCWarning(orq_tree_view_log, "Ignoring the stored value %s/%s, which is not a bool",
                  qUtf8Printable(key), qUtf8Printable(visibility_name));
    }
    const QString size_name = name + k_size_suffix;
    int width = 0;
    bool stored = false;
    if (settings.contains(key, size_name)) {
      const QVariant variant = settings.value(key, size_name);
      ORQ_REQUIRE(variant.isValid());
      stored = stored_width(variant, &width);
      if (!stored)
        qCWarning(orq_tree_view_log, "Ignoring the stored value %s/%s, which is not a column width",
                  qUtf8Printable(key), qUtf8Printable(size_name));
    }
    if (stored)
      setColumnWidth(c, width);
    else
      resizeColumnToContents(c);
  }
}

void ORQ_TREE_VIEW::populate_column_selection_menu(QMenu* menu)
{
  ORQ_REQUIRE(menu != NULL);
  QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  QHeaderView* view_header = header();
  ORQ_REQUIRE(view_header != NULL);
  if (view_header->count() < 2)
    return;
  std::vector<std::pair<int, QAction*>> offered;
  for (int c = 0; c < view_header->count(); ++c) {
    if (is_column_always_hidden(c))
      continue;
    const QString text = view_model->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
    if (text.isEmpty())
      continue;
    QAction* menu_action = menu->addAction(text);
    ORQ_REQUIRE(menu_action != NULL);
    menu_action->setCheckable(true);
    menu_action->setChecked(!isColumnHidden(c));
    connect(menu_action, &QAction::triggered, this, [this, c] {
      const bool hide = !isColumnHidden(c);
      setColumnHidden(c, hide);
      if (!hide)
        resizeColumnToContents(c);
      emit column_visibility_changed(c);
    });
    offered.emplace_back(c, menu_action);
  }
  // The last visible column cannot be hidden: that would leave an empty view.
  int visible = 0;
  for (int c = 0; c < view_header->count(); ++c)
    visible += isColumnHidden(c) ? 0 : 1;
  if (visible == 1)
    for (const auto& entry : offered)
      if (!isColumnHidden(entry.first))
        entry.second->setEnabled(false);
}

void ORQ_TREE_VIEW::show_column_selection_menu()
{
  QMenu menu(this);
  populate_column_selection_menu(&menu);
  if (!menu.isEmpty())
    menu.exec(QCursor::pos());
}

bool ORQ_TREE_VIEW::dump_tree_view_data(const QModelIndex& index, std::ostream& stream, int level)
{
  const QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  if (!stream) {
    qCWarning(orq_tree_view_log, "The tree dump was not written: the stream had already failed");
    return false;
  }
  return write_row(index, stream, level);
}

bool ORQ_TREE_VIEW::write_row(const QModelIndex& index, std::ostream& stream, int level)
{
  const QAbstractItemModel* view_model = model();
  if (index.isValid()) {
    QByteArray line;
    const int columns = view_model->columnCount(QModelIndex());
    for (int c = 0; c < columns; ++c) {
      const QModelIndex cell = view_model->index(index.row(), c, index.parent());
      if (!cell.isValid() || isColumnHidden(c))
        continue;
      if (c == 0 && level > 0)
        line += '|' + QByteArray(level, '-');
      line += cell.data(Qt::DisplayRole).toString().toLocal8Bit();
      line += '\t';
    }
    line += '\n';
    stream.write(line.constData(), line.size());
    if (!stream) {
      qCWarning(orq_tree_view_log, "The tree dump stopped: the stream failed while writing");
      return false;
    }
  }
  for (int r = 0; r < view_model->rowCount(index); ++r) {
    const QModelIndex item_index = view_model->index(r, 0, index);
    ORQ_REQUIRE(item_index.isValid());
    if (!write_row(item_index, stream, level + 1))
      return false;
  }
  return true;
}

QString ORQ_TREE_VIEW::selected_rows_text() const
{
  const QAbstractItemModel* view_model = model();
  const QItemSelectionModel* selection = selectionModel();
  if (!view_model || !selection)
    return QString();
  std::vector<std::pair<std::vector<int>, QModelIndex>> rows;
  for (const QModelIndex& row : selection->selectedRows())
    rows.emplace_back(row_path(row), row);
  std::sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  QString text;
  for (const auto& entry : rows) {
    QStringList cells;
    // In the order the user sees the columns, which a drag may have changed.
    for (int v = 0; v < header()->count(); ++v) {
      const int c = header()->logicalIndex(v);
      if (!isColumnHidden(c))
        cells << entry.second.siblingAtColumn(c).data(Qt::DisplayRole).toString();
    }
    text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  return text;
}

void ORQ_TREE_VIEW::copy_selection_to_clipboard()
{
  const QString text = selected_rows_text();
  if (!text.isEmpty())
    QApplication::clipboard()->setText(text);
}

void ORQ_TREE_VIEW::keyPressEvent(QKeyEvent* event)
{
  // The item view's own copy takes the current cell only.
  if (event->matches(QKeySequence::Copy)) {
    copy_selection_to_clipboard();
    event->accept();
    return;
  }
  QTreeView::keyPressEvent(event);
}
