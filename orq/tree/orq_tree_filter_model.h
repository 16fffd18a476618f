#pragma once
// An ORQ_TREE_MODEL that carries its filter proxy: the view shows the proxy,
// and this model maps between the proxy's indexes and its own items and
// passes the filter settings on.
#include "orq_tree_model.h"

class ORQ_TREE_FILTER_PROXY_MODEL;

class ORQ_EXPORT ORQ_TREE_FILTER_MODEL : public ORQ_TREE_MODEL {
  Q_OBJECT
public:
  explicit ORQ_TREE_FILTER_MODEL(QObject* parent = nullptr);
  // The proxy is not deleted here: it is a child of this model's parent.
  ~ORQ_TREE_FILTER_MODEL() override;

  // Makes the proxy (a child of this model's parent) over this model,
  // filtering on column. A second call is an internal error.
  void create_filter_model(int column);
  void set_filter_model(ORQ_TREE_FILTER_PROXY_MODEL* filter_model);
  ORQ_TREE_FILTER_PROXY_MODEL* get_filter_model() const;

  // A proxy index for an item (invalid when filtered out), and back.
  QModelIndex get_index_from_item(QStandardItem* item);
  QStandardItem* get_item_from_index(QModelIndex index);
  // Through the proxy when there is one; unchanged otherwise.
  QModelIndex map_index_from_source(QModelIndex index);
  QModelIndex map_index_to_source(QModelIndex index);
  // Whether the (proxy) index has visible children.
  bool has_children(QModelIndex index);
  // Whether the source index passes the filter; true without a proxy.
  bool match_filter_index_from_model_source(QModelIndex index);

  // Only set_include_child may be called before a proxy is set (it is
  // ignored then); the other three need the proxy.
  void clear_filter_column_list();
  void insert_filter_column(int column);
  void set_include_child(bool include);
  void set_include_invisible_root_child(bool include);

private:
  ORQ_TREE_FILTER_PROXY_MODEL* m_filter_model;
};
