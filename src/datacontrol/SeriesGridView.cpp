// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/SeriesGridView.h"

#include "datacontrol/SeriesGridModel.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionHeader>

#include <algorithm>
#include <utility>

namespace tarsil {

namespace {

constexpr int evolutionColumn = static_cast<int>(SeriesColumn::Evolution);
constexpr int legendColumn = static_cast<int>(SeriesColumn::Legend);
constexpr int leastLegendWidth = 80;
constexpr int leastSectionWidth = 24; ///< the default fits the widest letter
constexpr int indexColumn = static_cast<int>(SeriesColumn::Index);
constexpr int modeKeyColumn = static_cast<int>(SeriesColumn::Mode);
constexpr int lineColumn = static_cast<int>(SeriesColumn::Line);

/// The headings. Qt measures them in bold, in which it shows the headings of selected cells; here
/// none is highlighted, and loading that font takes a fortieth of the start of the program.
class PlainHeader : public QHeaderView
{
public:
    explicit PlainHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent)
    {
        setSectionsClickable(true);
    }

protected:
    QSize sectionSizeFromContents(int section) const override
    {
        QStyleOptionHeader option;
        initStyleOption(&option);
        option.section = section;
        option.text = model()->headerData(section, Qt::Horizontal).toString();
        return style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), this);
    }
};

} // namespace

SeriesGridView::SeriesGridView(QWidget* parent) : QTableView(parent)
{
    setHorizontalHeader(new PlainHeader(this));
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setDragDropMode(QAbstractItemView::InternalMove);
    setDragDropOverwriteMode(false);
    setDefaultDropAction(Qt::MoveAction);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle); // names of runs differ at their ends
    setTabKeyNavigation(false); // Tab leaves the grid
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.column() == lineColumn)
            Q_EMIT styleWanted();
    });
    horizontalHeader()->setMinimumSectionSize(leastSectionWidth);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column) { m_hasUsersWidth |= column == evolutionColumn && !m_isFitting; });
}

void SeriesGridView::setModel(QAbstractItemModel* model)
{
    m_isFitting = true; // width changes of new columns are not by the user
    QTableView::setModel(model);
    m_isFitting = false;
    connect(model, &QAbstractItemModel::modelReset, this, &SeriesGridView::measureAllNames);
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& /*parent*/, int first, int last) { addNames(first, last); });
    connect(
        model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
        [this](const QModelIndex& /*parent*/, int first, int last) { removeNames(first, last); });
    connect(model, &QAbstractItemModel::rowsRemoved, this, &SeriesGridView::fitNames);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(model, signal, this, &SeriesGridView::filterSoon);
    connect(model, &QAbstractItemModel::rowsMoved, this, &SeriesGridView::filterSoon);
    connect(model, &QAbstractItemModel::modelReset, this, &SeriesGridView::filterSoon);
    connect(model, &QAbstractItemModel::dataChanged, this, &SeriesGridView::filterSoon);
    measureAllNames();
}

void SeriesGridView::measureAllNames()
{
    m_nameWidths.clear();
    addNames(0, model()->rowCount() - 1);
}

/// Measures only the new names, so that adding rows one by one costs no more than all at once.
void SeriesGridView::addNames(int first, int last)
{
    for (int row = first; row <= last; ++row)
        m_nameWidths.insert(widthOfName(row));
    fitNames();
}

void SeriesGridView::removeNames(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        const auto width = m_nameWidths.find(widthOfName(row));
        if (width != m_nameWidths.end())
            m_nameWidths.erase(width);
    }
}

int SeriesGridView::widthOfName(int row) const
{
    const int gridLine = showGrid() ? 1 : 0;
    return sizeHintForIndex(model()->index(row, evolutionColumn)).width() + gridLine;
}

void SeriesGridView::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    fitNames();
}

/// Repeats, because a scroll bar may appear or disappear and change the available width.
void SeriesGridView::fitNames()
{
    if (m_hasUsersWidth || m_isFitting || model() == nullptr)
        return;
    m_isFitting = true;
    constexpr int mostAttempts = 3;
    int room = -1;
    for (int i = 0; i < mostAttempts && room != viewport()->width(); ++i) {
        room = viewport()->width();
        horizontalHeader()->resizeSection(evolutionColumn, widthOfNames(room));
    }
    m_isFitting = false;
}

/// The width of the names in a grid that is `width` wide.
int SeriesGridView::widthOfNames(int width) const
{
    const QHeaderView& header = *horizontalHeader();
    int room = width - leastLegendWidth;
    for (int column = 0; column < header.count(); ++column) {
        if (column != evolutionColumn && column != legendColumn)
            room -= header.sectionSize(column);
    }
    const int least = header.sectionSizeHint(evolutionColumn);
    const int needed = m_nameWidths.empty() ? least : std::max(*m_nameWidths.rbegin(), least);
    return std::min(needed, std::max(room, least));
}

void SeriesGridView::setRowFilter(std::function<bool(int)> isShown)
{
    m_isShown = std::move(isShown);
    filterAgain();
}

void SeriesGridView::filterAgain()
{
    m_isFilterDue = false;
    for (int row = 0; row < model()->rowCount(); ++row) {
        const bool isHidden = m_isShown && !m_isShown(row);
        if (isHidden != isRowHidden(row))
            setRowHidden(row, isHidden);
    }
}

/// A command changes many rows one by one; the filter is applied once after it.
void SeriesGridView::filterSoon()
{
    if (!m_isShown || m_isFilterDue)
        return;
    m_isFilterDue = true;
    QMetaObject::invokeMethod(this, &SeriesGridView::filterAgain, Qt::QueuedConnection);
}

QString SeriesGridView::columnWidths() const
{
    QStringList widths;
    for (int column = 0; column < legendColumn; ++column) {
        const bool isFitted = column == evolutionColumn && !m_hasUsersWidth;
        widths.append(QString::number(isFitted ? 0 : columnWidth(column)));
    }
    return widths.join(u'|');
}

void SeriesGridView::setColumnWidths(const QString& widths)
{
    constexpr int most = 4000; // pixels
    const QStringList parts = widths.split(u'|');
    if (parts.size() != legendColumn)
        return;
    for (int column = 0; column < legendColumn; ++column) {
        const int width = parts[column].toInt();
        if (width >= leastSectionWidth && width <= most)
            setColumnWidth(column, width);
    }
}

std::vector<std::size_t> SeriesGridView::shownRows() const
{
    std::vector<std::size_t> rows;
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (!isRowHidden(row))
            rows.push_back(static_cast<std::size_t>(row));
    }
    return rows;
}

std::vector<std::size_t> SeriesGridView::selectedRows() const
{
    std::set<std::size_t> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (!isRowHidden(row))
                rows.insert(static_cast<std::size_t>(row));
        }
    }
    return {rows.begin(), rows.end()};
}

std::vector<int> SeriesGridView::selectedOrCurrentColumns() const
{
    std::set<int> columns;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int column = range.left(); column <= range.right(); ++column)
            columns.insert(column);
    }
    if (columns.empty() && currentIndex().isValid())
        columns.insert(currentIndex().column());
    return {columns.begin(), columns.end()};
}

std::vector<std::size_t> SeriesGridView::selectedOrCurrentRows() const
{
    std::vector<std::size_t> rows = selectedRows();
    if (rows.empty() && currentIndex().isValid() && !isRowHidden(currentIndex().row()))
        rows.push_back(static_cast<std::size_t>(currentIndex().row()));
    return rows;
}

bool SeriesGridView::isSelectedOnlyIn(int column) const
{
    const QItemSelection selection = selectionModel()->selection();
    return !selection.isEmpty()
        && std::all_of(selection.begin(), selection.end(), [column](const auto& range) {
               return range.left() == column && range.right() == column;
           });
}

void SeriesGridView::selectRows(const std::vector<std::size_t>& rows, int column)
{
    if (rows.empty())
        return;
    QItemSelection selection;
    for (const std::size_t row : rows) {
        const QModelIndex cell = model()->index(static_cast<int>(row), column);
        selection.append(QItemSelectionRange(cell));
    }
    const QModelIndex first = model()->index(static_cast<int>(rows.front()), column);
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    scrollTo(first);
}

void SeriesGridView::commitEditor()
{
    if (state() != EditingState)
        return;
    for (auto* const editor : viewport()->findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly)) {
        if (editor->isHidden())
            continue; // an earlier one, about to be deleted
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

/// Does not overwrite text that is being typed.
void SeriesGridView::dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                 const QList<int>& roles)
{
    if (state() == EditingState)
        viewport()->update();
    else
        QTableView::dataChanged(topLeft, bottomRight, roles);
}

/// Keeps the selection on a double click on one of several selected lines, which edits all of them.
QItemSelectionModel::SelectionFlags SeriesGridView::selectionCommand(const QModelIndex& index,
                                                                     const QEvent* event) const
{
    const auto* const input = dynamic_cast<const QMouseEvent*>(event);
    if (input != nullptr && input->modifiers() == Qt::NoModifier && index.column() == lineColumn
        && selectionModel()->isSelected(index))
        return QItemSelectionModel::NoUpdate;
    return QTableView::selectionCommand(index, event);
}

void SeriesGridView::keyPressEvent(QKeyEvent* event)
{
    if (state() != EditingState && handleKey(*event))
        return;
    QTableView::keyPressEvent(event);
}

/// Handles the keys of the grid. False for other keys.
bool SeriesGridView::handleKey(const QKeyEvent& event)
{
    const bool isAlt = event.modifiers() == Qt::AltModifier;
    const int column = currentIndex().column();
    if (event.matches(QKeySequence::Delete))
        Q_EMIT removeWanted();
    else if (isAlt && event.key() == Qt::Key_Up)
        Q_EMIT moveUpWanted();
    else if (isAlt && event.key() == Qt::Key_Down)
        Q_EMIT moveDownWanted();
    else if (column == modeKeyColumn && event.key() == Qt::Key_Plus)
        Q_EMIT raiseWanted();
    else if (column == modeKeyColumn && event.key() == Qt::Key_Minus)
        Q_EMIT lowerWanted();
    else if (column == lineColumn
             && (event.key() == Qt::Key_F2 || event.key() == Qt::Key_Return
                 || event.key() == Qt::Key_Enter))
        Q_EMIT styleWanted();
    else
        return false;
    return true;
}

/// Only the first column is a handle: elsewhere dragging selects cells.
void SeriesGridView::mousePressEvent(QMouseEvent* event)
{
    setDragEnabled(indexAt(event->position().toPoint()).column() == indexColumn);
    QTableView::mousePressEvent(event);
}

void SeriesGridView::editAgain(const QModelIndex& cell, const QString& text)
{
    const auto open = [this, cell = QPersistentModelIndex(cell), text] {
        if (!cell.isValid() || !isVisible() || state() == EditingState)
            return;
        setCurrentIndex(cell);
        edit(cell);
        if (auto* const editor = qobject_cast<QLineEdit*>(indexWidget(cell)))
            editor->setText(text);
    };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

int SeriesGridView::gapAt(QPoint position) const
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid())
        return model()->rowCount();
    const bool isLowerHalf = position.y() > visualRect(index).center().y();
    return index.row() + (isLowerHalf ? 1 : 0);
}

/// Accepts the drop as a copy, so that Qt does not remove the dragged rows: a slot of the signal
/// moves them.
void SeriesGridView::dropEvent(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setState(NoState);
    viewport()->update();
    Q_EMIT rowsDropped(gapAt(event->position().toPoint()));
}

void SeriesGridView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    constexpr int margin = 12;
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, m_placeholder);
}

} // namespace tarsil
