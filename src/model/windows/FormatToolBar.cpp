// SPDX-FileCopyrightText: 2026 Korvanta contributors
// SPDX-License-Identifier: MIT

#include "model/windows/FormatToolBar.h"

#include <QAction>
#include <QActionGroup>
#include <QColorDialog>
#include <QFocusEvent>
#include <QFontComboBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextList>
#include <QToolButton>

#include <algorithm>
#include <initializer_list>
#include <optional>

#include "settings/basCommonFunctions.h"
#include "windowkit/IconFamily.h"

namespace zol {

namespace {

constexpr double LargestSize = 1638; // rich text counts half points up to 3276

constexpr std::array<Qt::AlignmentFlag, 3> Alignments{Qt::AlignLeft, Qt::AlignHCenter,
                                                      Qt::AlignRight};

/// Dark enough to be read on paper.
struct TextColor {
    const char* Name;
    QRgb Color;
};
constexpr std::array TextColors{
    TextColor{"Dark Red", 0xFF8C1A26}, TextColor{"Red", 0xFFC8102E},
    TextColor{"Orange", 0xFFB45309},   TextColor{"Brown", 0xFF6B4226},
    TextColor{"Green", 0xFF1E7A34},    TextColor{"Teal", 0xFF0F766E},
    TextColor{"Blue", 0xFF1D4ED8},     TextColor{"Navy", 0xFF1F2A5A},
    TextColor{"Purple", 0xFF7A2E8E},
};

QIcon Swatch(const QColor& color) {
    constexpr int Side = 32;
    QPixmap picture(Side, Side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.fillRect(QRect(2, 2, Side - 4, Side - 4), color);
    return picture;
}

/// The size of a font that a text names; nothing if it is none.
std::optional<double> SizeOf(const QString& text) {
    QString number = text.trimmed();
    number.replace(basCommonFunctions::DecimalSeparator(), QLatin1Char('.'));
    bool isNumber = false;
    const double size = number.toDouble(&isNumber);
    return isNumber && size > 0 && size <= LargestSize ? std::optional(size) : std::nullopt;
}

QString TextOf(double size) {
    return basCommonFunctions::FieldText(QString::number(size).toStdString());
}

void ShowInBox(QComboBox& box, const QString& text) {
    const QSignalBlocker quiet(box);
    box.setCurrentIndex(box.findText(text, Qt::MatchFixedString));
    box.setEditText(text);
}

bool IsKey(const QEvent& event, std::initializer_list<int> keys) {
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& press = static_cast<const QKeyEvent&>(event);
    const bool plain = (press.modifiers() & ~Qt::KeypadModifier) == 0;
    return plain && std::find(keys.begin(), keys.end(), press.key()) != keys.end();
}

bool IsEnter(const QEvent& event) {
    return IsKey(event, {Qt::Key_Return, Qt::Key_Enter});
}

/// Whether the keyboard goes to another part of the window.
bool IsLeaving(const QEvent& event) {
    if (event.type() != QEvent::FocusOut) {
        return false;
    }
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason;
}

void LeaveList(const QTextBlock& block) {
    QTextBlockFormat format = block.blockFormat();
    format.setObjectIndex(-1);
    format.setIndent(0);
    QTextCursor(block).setBlockFormat(format);
}

} // namespace

FormatToolBar::FormatToolBar(QTextEdit& editor, MessageDoor& messages,
                             const ProgramContext& context, QWidget* parent)
    : QToolBar(parent),
      m_editor(editor),
      m_messages(messages) {
    setObjectName(QStringLiteral("Toolbar1"));
    setIconSize({20, 20});
    layout()->setSpacing(6);
    AddBoxes();
    addSeparator();
    AddLooks();
    AddColors(context);
    addSeparator();
    AddAlignments();
    AddBullets();
    const auto show = [this] { ShowLooks(); };
    m_editor.installEventFilter(this);
    connect(&m_editor, &QTextEdit::currentCharFormatChanged, this, show);
    connect(&m_editor, &QTextEdit::cursorPositionChanged, this, show);
    connect(&m_editor, &QTextEdit::textChanged, this, show);
    ShowLooks();
    // The text was made first; it comes behind its keys.
    setTabOrder(widgetForAction(m_bullets), &m_editor);
}

// --- Keys and boxes -----------------------------------------------------------------------

QAction* FormatToolBar::AddKey(const char* key, const char* icon, const QString& caption,
                               const QKeySequence& shortcut) {
    QAction* action = addAction(IconFamily::Icon(QLatin1String(icon)), caption);
    action->setCheckable(true);
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetShortcut);
    if (!shortcut.isEmpty()) {
        QString tip = caption;
        tip += QStringLiteral(" (");
        tip += shortcut.toString(QKeySequence::NativeText);
        tip += QLatin1Char(')');
        action->setToolTip(tip);
    }
    m_editor.addAction(action);
    auto* button = qobject_cast<QToolButton*>(widgetForAction(action));
    button->setObjectName(QLatin1String(key));
    button->setFocusPolicy(Qt::TabFocus);
    return action;
}

void FormatToolBar::AddBoxes() {
    m_fonts = new QFontComboBox(this);
    m_fonts->setObjectName(QStringLiteral("cmbTBFontName"));
    m_fonts->setAccessibleName(QStringLiteral("Font"));
    m_fonts->setToolTip(QStringLiteral("Font"));
    m_fonts->setMinimumContentsLength(12);
    m_fonts->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_sizes = new QComboBox(this);
    m_sizes->setObjectName(QStringLiteral("cmbTBFontSize"));
    m_sizes->setAccessibleName(QStringLiteral("Font size"));
    m_sizes->setToolTip(QStringLiteral("Font size"));
    m_sizes->setEditable(true);
    m_sizes->setMinimumContentsLength(4);
    for (const int size : QFontDatabase::standardSizes()) {
        m_sizes->addItem(QString::number(size));
    }
    for (QComboBox* box : {static_cast<QComboBox*>(m_fonts), m_sizes}) {
        box->setInsertPolicy(QComboBox::NoInsert);
        box->installEventFilter(this);
        addWidget(box);
        connect(box, &QComboBox::textActivated, this, [this, box] {
            if (Take(*box)) {
                m_editor.setFocus();
            }
        });
    }
}

void FormatToolBar::AddLooks() {
    m_bold = AddKey("BOLD", "text-bold", QStringLiteral("Bold"), QKeySequence::Bold);
    m_italic = AddKey("ITALIC", "text-italic", QStringLiteral("Italic"), QKeySequence::Italic);
    m_underline =
        AddKey("UNDERLINE", "text-underline", QStringLiteral("Underline"), QKeySequence::Underline);
    connect(m_bold, &QAction::triggered, this, [this](bool on) {
        QTextCharFormat format;
        format.setFontWeight(on ? QFont::Bold : QFont::Normal);
        Merge(format);
    });
    connect(m_italic, &QAction::triggered, this, [this](bool on) {
        QTextCharFormat format;
        format.setFontItalic(on);
        Merge(format);
    });
    connect(m_underline, &QAction::triggered, this, [this](bool on) {
        QTextCharFormat format;
        format.setFontUnderline(on);
        Merge(format);
    });
}

void FormatToolBar::AddAlignments() {
    m_alignments = {
        AddKey("LEFTJUSTIFY", "align-left", QStringLiteral("Align Left"),
               QKeySequence(Qt::CTRL | Qt::Key_L)),
        AddKey("CENTERJUSTIFY", "align-center", QStringLiteral("Center"),
               QKeySequence(Qt::CTRL | Qt::Key_E)),
        AddKey("RIGHTJUSTIFY", "align-right", QStringLiteral("Align Right"),
               QKeySequence(Qt::CTRL | Qt::Key_R)),
    };
    for (std::size_t i = 0; i < m_alignments.size(); ++i) {
        connect(m_alignments[i], &QAction::triggered, this, [this, i] {
            m_editor.setAlignment(Alignments[i]);
            ShowLooks();
        });
    }
}

void FormatToolBar::AddColors(const ProgramContext& context) {
    const QString word = QString::fromStdString(context.ColorWord());
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("COLOR"));
    button->setIcon(IconFamily::Icon(QStringLiteral("text-color")));
    QString name = QStringLiteral("Text ");
    name += word;
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(button);
    connect(menu->addAction(QStringLiteral("&Automatic")), &QAction::triggered, this,
            [this] { SetColor(QBrush()); });
    for (const TextColor& row : TextColors) {
        const QColor color = QColor::fromRgb(row.Color);
        connect(menu->addAction(Swatch(color), QLatin1String(row.Name)), &QAction::triggered, this,
                [this, color] { SetColor(color); });
    }
    menu->addSeparator();
    QString more = QStringLiteral("&More ");
    more += word;
    more += QStringLiteral("s...");
    connect(menu->addAction(more), &QAction::triggered, this, &FormatToolBar::ChooseColor);
    button->setMenu(menu);
    addWidget(button);
}

void FormatToolBar::AddBullets() {
    m_bullets = AddKey("BULLETS", "text-bullets", QStringLiteral("Bullets"),
                       QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_L));
    connect(m_bullets, &QAction::triggered, this, &FormatToolBar::SetBullets);
}

// --- What stands at the cursor ------------------------------------------------------------

QFont FormatToolBar::FontAtCursor() const {
    return m_editor.currentCharFormat().font().resolve(m_editor.document()->defaultFont());
}

void FormatToolBar::ShowLooks() {
    const QFont font = FontAtCursor();
    m_bold->setChecked(font.weight() > QFont::Medium);
    m_italic->setChecked(font.italic());
    m_underline->setChecked(font.underline());
    const Qt::Alignment alignment = m_editor.alignment() & Qt::AlignHorizontal_Mask;
    for (std::size_t i = 0; i < m_alignments.size(); ++i) {
        m_alignments[i]->setChecked(alignment == Qt::Alignment(Alignments[i]));
    }
    m_bullets->setChecked(m_editor.textCursor().currentList() != nullptr);
    m_shownFont = font.families().value(0, font.family());
    m_shownSize = TextOf(font.pointSizeF());
    ShowInBox(*m_fonts, m_shownFont);
    ShowInBox(*m_sizes, m_shownSize);
}

void FormatToolBar::Merge(const QTextCharFormat& format) {
    m_editor.mergeCurrentCharFormat(format);
    ShowLooks();
}

void FormatToolBar::SetColor(const QBrush& color) {
    QTextCharFormat format;
    format.setForeground(color); // no brush takes the color away
    Merge(format);
    m_editor.setFocus();
}

void FormatToolBar::ChooseColor() {
    const QColor color = QColorDialog::getColor(m_editor.textColor(), window());
    if (color.isValid()) {
        SetColor(color);
    }
}

void FormatToolBar::SetBullets(bool on) {
    QTextCursor cursor = m_editor.textCursor();
    cursor.beginEditBlock();
    if (on) {
        cursor.createList(QTextListFormat::ListDisc);
    } else {
        const QTextDocument& document = *m_editor.document();
        const QTextBlock end = document.findBlock(cursor.selectionEnd()).next();
        for (QTextBlock block = document.findBlock(cursor.selectionStart()); block != end;
             block = block.next()) {
            LeaveList(block);
        }
    }
    cursor.endEditBlock();
    ShowLooks();
}

// --- What stands in the boxes -------------------------------------------------------------

void FormatToolBar::TakeFont() {
    const QString name = m_fonts->currentText().trimmed();
    if (!name.isEmpty()) {
        QTextCharFormat format;
        format.setFontFamilies({name});
        Merge(format);
    }
}

bool FormatToolBar::TakeSize() {
    const std::optional<double> size = SizeOf(m_sizes->currentText());
    if (!size) {
        return false;
    }
    QTextCharFormat format;
    format.setFontPointSize(*size);
    Merge(format);
    return true;
}

bool FormatToolBar::Take(const QComboBox& box) {
    if (&box == m_sizes) {
        return m_sizes->currentText() == m_shownSize || TakeSize();
    }
    if (m_fonts->currentText() != m_shownFont) {
        TakeFont();
    }
    return true;
}

bool FormatToolBar::TakeOrTell(QComboBox& box) {
    if (Take(box)) {
        return true;
    }
    m_messages.Tell("Invalid Font Size", MessageIcon::Stop, "Pattern Information");
    box.setFocus();
    box.lineEdit()->selectAll();
    return false;
}

bool FormatToolBar::TakeTypedSize() {
    return TakeOrTell(*m_sizes);
}

bool FormatToolBar::EndEmptyItem() {
    const QTextCursor cursor = m_editor.textCursor();
    const bool isEmpty = cursor.block().length() <= 1;
    if (cursor.currentList() == nullptr || !isEmpty || cursor.hasSelection()) {
        return false;
    }
    LeaveList(cursor.block());
    ShowLooks();
    return true;
}

bool FormatToolBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &m_editor) {
        return IsEnter(*event) && EndEmptyItem();
    }
    auto* box = watched == m_sizes ? m_sizes : static_cast<QComboBox*>(m_fonts);
    if (IsEnter(*event)) {
        // Here it means the text, not the window's default button.
        if (TakeOrTell(*box)) {
            m_editor.setFocus();
        }
        return true;
    }
    if (IsKey(*event, {Qt::Key_Escape})) {
        // Here it takes back what was typed, and leaves the window open.
        ShowLooks();
        m_editor.setFocus();
        return true;
    }
    if (IsLeaving(*event)) {
        // What is no size stays there; it is told when the window is to take it.
        (void)Take(*box);
    }
    return QToolBar::eventFilter(watched, event);
}

} // namespace zol
