#include "hierarchy_panel.h"

#include "design_hierarchy.h"

#include <orq.h>

#include <QFile>
#include <QHeaderView>
#include <QLocale>
#include <QPainter>
#include <QStandardItem>
#include <QStyledItemDelegate>
#include <QTextStream>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

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

private:
  QRegularExpression m_expression;
};

HIERARCHY_PANEL::HIERARCHY_PANEL(int rows, unsigned seed, QWidget* parent)
    : QWidget(parent)
    , m_rows(rows)
    , m_model(new ORQ_TREE_FILTER_MODEL(this))
    , m_filter(new ORQ_LINE_EDIT_FILTER(this))
    , m_view(new QTreeView(this))
    , m_delegate(new MATCH_DELEGATE(this))
    , m_delay(new QTimer(this))
{
  fill_design_hierarchy(*m_model, rows, seed);
  m_model->create_filter_model(0);
  // Instance names and cell types are searched together.
  m_model->insert_filter_column(0);
  m_model->insert_filter_column(1);
  m_proxy = m_model->get_filter_model();

  m_filter->setObjectName(QStringLiteral("hierarchy_filter"));
  m_view->setObjectName(QStringLiteral("hierarchy_view"));
  // A million rows lay out in one pass only when the view need not measure
  // each of them.
  m_view->setUniformRowHeights(true);
  m_view->setModel(m_proxy);
  m_view->setItemDelegate(m_delegate);
  m_view->header()->resizeSection(0, 200);
  m_view->expandToDepth(1);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(2, 2, 2, 2);
  layout->addWidget(m_filter);
  layout->addWidget(m_view);

  // The library leaves the typing delay to the tool: one filter per pause.
  m_delay->setSingleShot(true);
  m_delay->setInterval(150);
  connect(m_filter, &QLineEdit::textChanged, m_delay, qOverload<>(&QTimer::start));
  connect(m_delay, &QTimer::timeout, this, &HIERARCHY_PANEL::run_filter);
  connect(m_proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_content, this, [this](const QRegularExpression& expression) {
    m_delegate->set_expression(expression);
    m_view->viewport()->update();
  });
  connect(m_proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_done, this, [this] { show_result(true); });
  connect(m_proxy, &ORQ_TREE_FILTER_PROXY_MODEL::filter_cancel, this, [this] { show_result(false); });
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

void HIERARCHY_PANEL::show_result(bool filtered)
{
  m_filtered = filtered;
  if (filtered) {
    m_view->expandAll();
  } else {
    m_view->collapseAll();
    m_view->expandToDepth(1);
  }
  // The count grows as the view maps rows; expanding has mapped them all.
  emit status_changed(status_text());
}

QSize HIERARCHY_PANEL::sizeHint() const
{
  return QSize(380, 600);
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

QString HIERARCHY_PANEL::status_text() const
{
  const QLocale locale(QLocale::English);
  QString text = QStringLiteral("Hierarchy: %1 rows").arg(locale.toString(m_rows));
  if (m_filtered)
    text += QStringLiteral(" | %1 matches").arg(locale.toString(m_proxy->get_search_result_count()));
  return text;
}
