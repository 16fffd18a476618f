#pragma once
// What the Hierarchy panel's export must hold, worked out from the model
// itself rather than through the view: every row the filter rule keeps, in
// tree order, "|" and a hyphen per level, the shown columns' texts each
// followed by a tab.
#include <orq_tree_filter_proxy_model.h>
#include <orq_tree_model.h>

#include <QByteArray>
#include <QList>
#include <QRegularExpression>
#include <QStandardItem>

#include <functional>

inline QByteArray hierarchy_expected_dump(const ORQ_TREE_MODEL& model, const QString& typed,
                                          const QList<int>& columns)
{
  struct EXPRESSIONS : ORQ_TREE_FILTER_PROXY_MODEL {
    using ORQ_TREE_FILTER_PROXY_MODEL::process_keyword_expression;
  } parser;
  const QRegularExpression expression = parser.process_keyword_expression(typed.trimmed());
  const bool filtering = !expression.pattern().isEmpty();
  // By the key column alone or by instance and cell joined, as the panel
  // searches them.
  auto matches = [&](const QStandardItem* parent, int row) {
    const QString name = parent->child(row, 0)->text();
    const QString joined = name + QLatin1Char(' ') + parent->child(row, 1)->text() + QLatin1Char(' ');
    return expression.match(name).hasMatch() || expression.match(joined).hasMatch();
  };
  std::function<bool(const QStandardItem*)> below = [&](const QStandardItem* row) {
    for (int r = 0; r < row->rowCount(); ++r)
      if (matches(row, r) || below(row->child(r, 0)))
        return true;
    return false;
  };
  QByteArray text;
  std::function<void(const QStandardItem*, int, bool)> write = [&](const QStandardItem* parent, int level,
                                                                   bool ancestor_matches) {
    for (int r = 0; r < parent->rowCount(); ++r) {
      const QStandardItem* row = parent->child(r, 0);
      const bool self = filtering && matches(parent, r);
      if (filtering && !self && !ancestor_matches && !below(row))
        continue;
      text += '|' + QByteArray(level, '-');
      for (int c : columns)
        text += parent->child(r, c)->text().toLocal8Bit() + '\t';
      text += '\n';
      write(row, level + 1, ancestor_matches || self);
    }
  };
  write(model.invisibleRootItem(), 1, false);
  return text;
}
