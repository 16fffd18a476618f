#include "orq_tree_view.h"

#include "orq_require_p.h"
#include "orq_tree_path_memory_p.h"

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
#include <QTextCodec>

#include <algorithm>
#include <cstring>
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

// An item's display text as its path has it, read in place from the
// variant the item returns: a copy would cost two atomic reference counts
// per row.
class DISPLAY_TEXT {
public:
  explicit DISPLAY_TEXT(const QStandardItem* item)
  {
    if (item)
      m_value = item->data(Qt::DisplayRole);
    if (m_value.userType() != QMetaType::QString)
      m_converted = m_value.toString();
  }

  const QString& text() const
  {
    return m_value.userType() == QMetaType::QString ? *static_cast<const QString*>(m_value.constData())
                                                    : m_converted;
  }

private:
  QVariant m_value;
  QString m_converted;
};

// Writes the text dump: whole lines gathered into large writes, with the
// hidden columns read once. Reports are ASCII almost throughout, and the
// locale encodings known here keep ASCII byte for byte, so such texts are
// copied as they are; any other text goes through the locale's codec.
class DUMP_WRITER {
public:
  DUMP_WRITER(const QAbstractItemModel& model, const QTreeView& view, std::ostream& stream)
      : m_model(model)
      , m_stream(stream)
      , m_buffer(k_write_size * 2)
  {
    const int columns = model.columnCount(QModelIndex());
    for (int c = 0; c < columns; ++c)
      m_hidden.push_back(view.isColumnHidden(c));
    const QTextCodec* codec = QTextCodec::codecForLocale();
    const int mib = codec ? codec->mibEnum() : k_latin1;
    m_ascii_as_is = mib == k_utf8 || mib == k_latin1 || mib == k_latin9 || mib == k_ascii;
  }

  bool write(const QModelIndex& index, const QModelIndex& parent, int level)
  {
    if (index.isValid()) {
      for (int c = 0; c < int(m_hidden.size()); ++c) {
        const QModelIndex cell = c == index.column() ? index : m_model.index(index.row(), c, parent);
        if (!cell.isValid() || m_hidden[std::size_t(c)])
          continue;
        if (c == 0 && level > 0) {
          char* out = room(std::size_t(level) + 1);
          *out = '|';
          std::memset(out + 1, '-', std::size_t(level));
          m_used += std::size_t(level) + 1;
        }
        // Read in place: a copy of each text would cost two atomic
        // reference counts per cell.
        const QVariant value = m_model.data(cell, Qt::DisplayRole);
        if (value.userType() == QMetaType::QString)
          add_text(*static_cast<const QString*>(value.constData()));
        else
          add_text(value.toString());
        *room(1) = '\t';
        ++m_used;
      }
      *room(1) = '\n';
      ++m_used;
      if (m_used >= k_write_size && !flush())
        return false;
    }
    const int rows = m_model.rowCount(index);
    for (int r = 0; r < rows; ++r) {
      const QModelIndex item_index = m_model.index(r, 0, index);
      // What came before is in the stream when the error is raised.
      if (!item_index.isValid() && !flush())
        return false;
      ORQ_REQUIRE(item_index.isValid());
      if (!write(item_index, index, level + 1))
        return false;
    }
    return true;
  }

  bool flush()
  {
    m_stream.write(m_buffer.data(), std::streamsize(m_used));
    m_used = 0;
    if (!m_stream) {
      qCWarning(orq_tree_view_log, "The tree dump stopped: the stream failed while writing");
      return false;
    }
    return true;
  }

private:
  static constexpr std::size_t k_write_size = std::size_t(64) * 1024;
  static constexpr int k_ascii = 3;
  static constexpr int k_latin1 = 4;
  static constexpr int k_utf8 = 106;
  static constexpr int k_latin9 = 111;

  // Space for size more bytes at the end; a line longer than the buffer
  // makes it grow.
  char* room(std::size_t size)
  {
    if (m_used + size > m_buffer.size())
      m_buffer.resize(std::max(m_buffer.size() * 2, m_used + size));
    return m_buffer.data() + m_used;
  }

  void add_text(const QString& text)
  {
    const std::size_t size = std::size_t(text.size());
    if (m_ascii_as_is) {
      const QChar* in = text.constData();
      char* out = room(size);
      std::size_t i = 0;
      while (i < size && in[i].unicode() < 0x80) {
        out[i] = char(in[i].unicode());
        ++i;
      }
      if (i == size) {
        m_used += size;
        return;
      }
    }
    const QByteArray bytes = text.toLocal8Bit();
    std::memcpy(room(std::size_t(bytes.size())), bytes.constData(), std::size_t(bytes.size()));
    m_used += std::size_t(bytes.size());
  }

  const QAbstractItemModel& m_model;
  std::ostream& m_stream;
  std::vector<bool> m_hidden;
  bool m_ascii_as_is = false;
  std::vector<char> m_buffer;
  std::size_t m_used = 0;
};

} // namespace

ORQ_TREE_VIEW::ORQ_TREE_VIEW(QWidget* parent)
    : QTreeView(parent)
    , m_memory(std::make_unique<ORQ_TREE_PATH_MEMORY>())
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
  if (!clear && qobject_cast<QStandardItemModel*>(view_model)) {
    // The same as saving each top-level row in turn, in one walk.
    remember_children(QModelIndex(), nullptr, ORQ_TREE_PATH_MEMORY::ROOT);
    return;
  }
  // Deliberate: clear applies before each top-level row, so only the last subtree stays remembered.
  for (int r = 0; r < view_model->rowCount(); ++r)
    save_expandable_state(view_model->index(r, 0), clear);
}

void ORQ_TREE_VIEW::save_expandable_state(const QModelIndex& index, bool clear)
{
  QAbstractItemModel* view_model = model();
  ORQ_REQUIRE(view_model != NULL);
  if (clear)
    m_memory->clear();
  if (qobject_cast<QStandardItemModel*>(view_model)) {
    if (index.isValid())
      remember_subtree(index);
    else
      remember_children(index, nullptr, ORQ_TREE_PATH_MEMORY::ROOT);
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

void ORQ_TREE_VIEW::remember(const QModelIndex& row, int node, int children)
{
  // Deliberate: a leaf counts as expanded, so that it opens once it gains children.
  m_memory->set_expanded(node, children == 0 ? true : isExpanded(row));
  if (m_check_state_switch) {
    const int state = row.data(Qt::CheckStateRole).toInt();
    m_memory->set_check_state(node, state == Qt::Checked ? 2 : state != 0 ? 1 : 0);
  }
}

// By the whole path string: for any model, and for rows whose texts hold "|".
void ORQ_TREE_VIEW::remember_row(const QModelIndex& row)
{
  // Rows without columns have no index; taken for the top level they would
  // be walked again without end.
  if (!row.isValid())
    return;
  QAbstractItemModel* view_model = model();
  const QString path = get_path(row);
  if (row.isValid())
    remember(row, m_memory->insert(path), view_model->rowCount(row));
  for (int r = 0; r < view_model->rowCount(row); ++r)
    remember_row(view_model->index(r, 0, row));
}

void ORQ_TREE_VIEW::remember_subtree(const QModelIndex& index)
{
  bool plain = false;
  const int node = m_memory->insert(get_path(index), &plain);
  const QStandardItem* item = static_cast<QStandardItemModel*>(model())->itemFromIndex(index);
  const int children = model()->rowCount(index);
  remember(index, node, children);
  if (plain) {
    remember_children(index, item, node);
    return;
  }
  for (int r = 0; r < children; ++r)
    remember_row(model()->index(r, 0, index));
}

// Saving reads the model and the view and changes neither, so the rows
// found here stay as they are for the whole walk.
void ORQ_TREE_VIEW::remember_children(const QModelIndex& row, const QStandardItem* item, int node)
{
  auto* view_model = static_cast<QStandardItemModel*>(model());
  int cursor = m_memory->first_child(node);
  const int rows = view_model->rowCount(row);
  for (int r = 0; r < rows; ++r) {
    const QModelIndex item_index = view_model->index(r, 0, row);
    if (!row.isValid())
      ORQ_REQUIRE(item_index.isValid());
    const QStandardItem* child = item_index.isValid() ? view_model->itemFromIndex(item_index) : nullptr;
    // A row steps from its parent's entry by its own text when that is
    // exactly what its path adds; anything else goes by the whole path.
    if (!child || child->parent() != item) {
      remember_row(item_index);
      continue;
    }
    const DISPLAY_TEXT text(child);
    if (!ORQ_TREE_PATH_MEMORY::is_plain(text.text())) {
      remember_row(item_index);
      continue;
    }
    const int child_node = m_memory->insert_child(node, text.text(), &cursor);
    const int children = view_model->rowCount(item_index);
    remember(item_index, child_node, children);
    if (children > 0)
      remember_children(item_index, child, child_node);
  }
}

// A restore sets rows expanded and check states, and a tool may answer
// either by changing the model or the memory. Rows are stepped to from their
// parent's entry only while nothing of the kind happened; from the first
// change on, every row goes by its whole path, as it then reads.
struct ORQ_TREE_VIEW::RESTORE_WALK {
  RESTORE_WALK(ORQ_TREE_VIEW* view, QAbstractItemModel* view_model)
      : view(view)
      , model(view_model)
      , generation(view->m_memory->generation())
  {
    auto moved = [this] { disturbed = true; };
    connections = {
        QObject::connect(model, &QAbstractItemModel::dataChanged, model,
                         [this](const QModelIndex&, const QModelIndex&, const QVector<int>& roles) {
                           if (roles.isEmpty() || roles.contains(Qt::DisplayRole) ||
                               roles.contains(Qt::EditRole))
                             disturbed = true;
                         }),
        QObject::connect(model, &QAbstractItemModel::layoutAboutToBeChanged, model, moved),
        QObject::connect(model, &QAbstractItemModel::modelAboutToBeReset, model, moved),
        QObject::connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, model, moved),
        QObject::connect(model, &QAbstractItemModel::rowsAboutToBeMoved, model, moved),
        QObject::connect(model, &QAbstractItemModel::columnsAboutToBeInserted, model, moved),
        QObject::connect(model, &QAbstractItemModel::columnsAboutToBeRemoved, model, moved),
        QObject::connect(model, &QAbstractItemModel::columnsAboutToBeMoved, model, moved)};
  }
  ~RESTORE_WALK()
  {
    for (const QMetaObject::Connection& connection : connections)
      QObject::disconnect(connection);
  }
  RESTORE_WALK(const RESTORE_WALK&) = delete;
  RESTORE_WALK& operator=(const RESTORE_WALK&) = delete;

  bool steady() const
  {
    return !disturbed && view->model() == model && view->m_memory->generation() == generation;
  }

  ORQ_TREE_VIEW* view;
  QAbstractItemModel* model;
  std::uint64_t generation;
  bool disturbed = false;
  std::vector<QMetaObject::Connection> connections;
};

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
  const bool standard = qobject_cast<QStandardItemModel*>(view_model) != nullptr;
  if (!index.isValid()) {
    if (standard) {
      RESTORE_WALK walk(this, view_model);
      restore_children(walk, index, nullptr, ORQ_TREE_PATH_MEMORY::ROOT);
    } else {
      for (int r = 0; r < view_model->rowCount(); ++r)
        restore_expandable_state(view_model->index(r, 0));
    }
  } else if (standard) {
    // The subtree is visited once; going over the child rows a second time
    // would set the very same states.
    RESTORE_WALK walk(this, view_model);
    restore_subtree(walk, index);
  } else {
    // Without item paths a row's text is its key, and keys below it would
    // be ambiguous: only the row itself is set.
    setExpanded(index, remembered_expanded(index.data(Qt::DisplayRole).toString()));
  }
  return m_memory->has_expansion();
}

bool ORQ_TREE_VIEW::remembered_expanded(const QString& path) const
{
  const int node = m_memory->find(path);
  return node != ORQ_TREE_PATH_MEMORY::NONE && m_memory->expanded(node) == 1;
}

// By the whole path string, row by row.
void ORQ_TREE_VIEW::restore_row(const QModelIndex& row)
{
  if (!row.isValid()) // a row without columns: nothing to open
    return;
  QAbstractItemModel* view_model = model();
  setExpanded(row, remembered_expanded(get_path(row)));
  // Deliberate: restored rows become partially checked; the saved states are a record, not put back.
  if (m_check_state_switch)
    view_model->setData(row, int(Qt::PartiallyChecked), Qt::CheckStateRole);
  for (int r = 0; r < view_model->rowCount(row); ++r)
    restore_row(view_model->index(r, 0, row));
}

void ORQ_TREE_VIEW::restore_subtree(RESTORE_WALK& walk, const QModelIndex& index)
{
  bool plain = false;
  const int node = m_memory->find(get_path(index), &plain);
  const QStandardItem* item = static_cast<QStandardItemModel*>(walk.model)->itemFromIndex(index);
  setExpanded(index, node != ORQ_TREE_PATH_MEMORY::NONE && m_memory->expanded(node) == 1);
  if (m_check_state_switch)
    walk.model->setData(index, int(Qt::PartiallyChecked), Qt::CheckStateRole);
  if (plain && walk.steady()) {
    restore_children(walk, index, item, node);
    return;
  }
  for (int r = 0; r < walk.model->rowCount(index); ++r)
    restore_row(walk.model->index(r, 0, index));
}

void ORQ_TREE_VIEW::restore_children(RESTORE_WALK& walk, const QModelIndex& row, const QStandardItem* item,
                                     int node)
{
  auto* view_model = static_cast<QStandardItemModel*>(walk.model);
  const bool top = !row.isValid();
  int cursor = node != ORQ_TREE_PATH_MEMORY::NONE ? m_memory->first_child(node) : ORQ_TREE_PATH_MEMORY::NONE;
  for (int r = 0; r < view_model->rowCount(row); ++r) {
    const QModelIndex child_index = view_model->index(r, 0, row);
    if (!child_index.isValid())
      continue;
    const QStandardItem* child = walk.steady() ? view_model->itemFromIndex(child_index) : nullptr;
    const bool stepping = child && child->parent() == item;
    const DISPLAY_TEXT text(stepping ? child : nullptr);
    if (!stepping || !ORQ_TREE_PATH_MEMORY::is_plain(text.text())) {
      if (top)
        restore_expandable_state(child_index);
      else
        restore_row(child_index);
      continue;
    }
    const int child_node = node != ORQ_TREE_PATH_MEMORY::NONE
                               ? m_memory->find_child(node, text.text(), &cursor)
                               : ORQ_TREE_PATH_MEMORY::NONE;
    setExpanded(child_index, child_node != ORQ_TREE_PATH_MEMORY::NONE && m_memory->expanded(child_node) == 1);
    if (m_check_state_switch)
      view_model->setData(child_index, int(Qt::PartiallyChecked), Qt::CheckStateRole);
    restore_children(walk, child_index, child, child_node);
  }
}

bool ORQ_TREE_VIEW::was_item_expanded_previously(const QModelIndex& index)
{
  if (!index.isValid())
    return false;
  return remembered_expanded(get_path(index));
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
  return m_memory->expansion_map();
}

const QMap<QString, int>& ORQ_TREE_VIEW::check_state_memory() const
{
  return m_memory->check_state_map();
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
  DUMP_WRITER writer(*view_model, *this, stream);
  return writer.write(index, index.parent(), level) && writer.flush();
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
