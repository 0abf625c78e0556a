#include "Adapters.h"

#include "common/ListView.h"

#include <QHeaderView>
#include <QTreeWidget>

namespace quillane::ui {

ListViewAdapter::ListViewAdapter(Binder& binder, ListView& list, QTreeWidget* tree)
    : Adapter(binder, list, tree), list_(list) {
    tree->setRootIsDecorated(false);
    tree->setSelectionMode(QAbstractItemView::SingleSelection);
    ListView* model = &list;
    QObject::connect(tree, &QTreeWidget::itemClicked, &binder_,
                     [this, tree, model](QTreeWidgetItem* item) {
                         const int n = tree->indexOfTopLevelItem(item) + 1;
                         if (n >= 1)
                             Act([model, n] { model->UserClickItem(n); });
                     });
    QObject::connect(tree, &QTreeWidget::itemChanged, &binder_,
                     [this, tree, model](QTreeWidgetItem* item) {
                         const int n = tree->indexOfTopLevelItem(item) + 1;
                         if (Updating() || n < 1 || !model->Checkboxes())
                             return;
                         const bool checked = item->checkState(0) == Qt::Checked;
                         if (checked != model->Item(n).checked)
                             Act([model, n, checked] { model->UserCheckItem(n, checked); });
                     });
}

void ListViewAdapter::Show(Prop prop) {
    auto* tree = static_cast<QTreeWidget*>(widget_.data());
    if (prop == Prop::Caption) {
        QStringList headers;
        for (const auto& column : list_.Columns())
            headers << QString::fromStdString(column);
        tree->setColumnCount(std::max(1, int(headers.size())));
        tree->setHeaderLabels(headers);
        tree->header()->setVisible(!headers.isEmpty());
        return;
    }
    if (prop != Prop::Items && prop != Prop::Checkboxes)
        return;
    // A short list: it is laid out anew from the model.
    const int count = list_.Count();
    while (tree->topLevelItemCount() > count)
        delete tree->takeTopLevelItem(tree->topLevelItemCount() - 1);
    while (tree->topLevelItemCount() < count)
        tree->addTopLevelItem(new QTreeWidgetItem);
    for (int n = 1; n <= count; ++n) {
        const ListViewItem& model = list_.Item(n);
        QTreeWidgetItem* item = tree->topLevelItem(n - 1);
        item->setText(0, QString::fromStdString(model.text));
        item->setData(0, Qt::UserRole, QString::fromStdString(model.key));
        if (list_.Checkboxes()) {
            item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
            item->setCheckState(0, model.checked ? Qt::Checked : Qt::Unchecked);
        } else {
            item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
            item->setData(0, Qt::CheckStateRole, QVariant());
        }
        item->setSelected(n == list_.Selected());
    }
    if (list_.Selected() > 0)
        tree->setCurrentItem(tree->topLevelItem(list_.Selected() - 1));
}

} // namespace quillane::ui
