#include "orq_tree_filter_model.h"

#include "orq_require_p.h"
#include "orq_tree_filter_proxy_model.h"

ORQ_TREE_FILTER_MODEL::ORQ_TREE_FILTER_MODEL(QObject* parent)
    : ORQ_TREE_MODEL(parent)
    , m_filter_model(nullptr)
{
}

ORQ_TREE_FILTER_MODEL::~ORQ_TREE_FILTER_MODEL() = default;

void ORQ_TREE_FILTER_MODEL::create_filter_model(int column)
{
  ORQ_REQUIRE(m_filter_model == NULL);
  m_filter_model = new ORQ_TREE_FILTER_PROXY_MODEL(QObject::parent());
  ORQ_REQUIRE(m_filter_model != NULL);
  m_filter_model->setSourceModel(this);
  m_filter_model->setFilterKeyColumn(column);
}

void ORQ_TREE_FILTER_MODEL::set_filter_model(ORQ_TREE_FILTER_PROXY_MODEL* filter_model)
{
  m_filter_model = filter_model;
}

ORQ_TREE_FILTER_PROXY_MODEL* ORQ_TREE_FILTER_MODEL::get_filter_model() const
{
  return m_filter_model;
}

QModelIndex ORQ_TREE_FILTER_MODEL::get_index_from_item(QStandardItem* item)
{
  const QModelIndex index = indexFromItem(item);
  return m_filter_model ? m_filter_model->mapFromSource(index) : index;
}

QStandardItem* ORQ_TREE_FILTER_MODEL::get_item_from_index(QModelIndex index)
{
  return itemFromIndex(m_filter_model ? m_filter_model->mapToSource(index) : index);
}

QModelIndex ORQ_TREE_FILTER_MODEL::map_index_from_source(QModelIndex index)
{
  return m_filter_model ? m_filter_model->mapFromSource(index) : index;
}

QModelIndex ORQ_TREE_FILTER_MODEL::map_index_to_source(QModelIndex index)
{
  return m_filter_model ? m_filter_model->mapToSource(index) : index;
}

bool ORQ_TREE_FILTER_MODEL::has_children(QModelIndex index)
{
  return m_filter_model ? m_filter_model->hasChildren(index) : hasChildren(index);
}

bool ORQ_TREE_FILTER_MODEL::match_filter_index_from_model_source(QModelIndex index)
{
  return !m_filter_model || m_filter_model->mapFromSource(index).isValid();
}

// These three need the proxy: a tool that calls them first has wired its
// report in the wrong order, which an assertion shows during development.
void ORQ_TREE_FILTER_MODEL::clear_filter_column_list()
{
  Q_ASSERT(m_filter_model);
  m_filter_model->clear_filter_column_list();
}

void ORQ_TREE_FILTER_MODEL::insert_filter_column(int column)
{
  Q_ASSERT(m_filter_model);
  m_filter_model->insert_filter_column(column);
}

// Tolerates a missing proxy: tools set it before they create the proxy.
void ORQ_TREE_FILTER_MODEL::set_include_child(bool include)
{
  if (m_filter_model)
    m_filter_model->include_child = include;
}

void ORQ_TREE_FILTER_MODEL::set_include_invisible_root_child(bool include)
{
  Q_ASSERT(m_filter_model);
  m_filter_model->set_include_invisible_root_child(include);
}
