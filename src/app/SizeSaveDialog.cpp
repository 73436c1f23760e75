// SPDX-License-Identifier: GPL-3.0-or-later
/// Choices, the search behind them, and both pictures.
#include "app/SizeSaveDialog.h"
#include "app/TwinView.h"
#include "desktop/LatestWish.h"
#include "desktop/Panels.h"
#include "desktop/Settings.h"
#include "desktop/Sounds.h"
#include "document/Document.h"
#include "document/Picture.h"
#include "operations/Files.h"
#include "operations/SizeSearch.h"
#include <QButtonGroup>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <optional>

using namespace zp;

namespace
{

constexpr const char* kKindSetting = "sizedCopy.kind";
constexpr const char* kGoalSetting = "sizedCopy.goal";
constexpr const char* kKilobytesSetting = "sizedCopy.kilobytes";
constexpr const char* kQualitySetting = "sizedCopy.quality";
constexpr int kFirstKilobytes = 300, kMostKilobytes = 99'999, kFirstQuality = 70;
/// Milliseconds of rest before a number that is typed is sought.
constexpr int kRest = 250;
constexpr SaveFormat kKinds[] = {SaveFormat::JPEG, SaveFormat::WebP};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SizeSaveDialog)
};

class SizeSaveDialog : public QDialog
{
public:
    SizeSaveDialog(Document& document, std::shared_ptr<const BitmapRep> picture, QWidget* parent)
        : QDialog(parent),
          mDocument(document),
          mPicture(std::move(picture)),
          mSeeker([this](const Wish& wish, const auto& turn) { return found(wish, turn); },
                  [this](News news) { show(std::move(news)); })
    {
        setObjectName("SizeSave");
        setWindowTitle(Texts::tr("Save for a Size"));
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(20, 20, 20, 16);
        column->setSpacing(10);
        mView = new TwinView(mPicture, this);
        mView->setObjectName("mSize_View");
        mView->setAccessibleName(Texts::tr("The image before and after"));
        mView->setToolTip(Texts::tr("Drag to see another place; the wheel zooms"));
        column->addWidget(mView, 1);
        auto* captions = new QHBoxLayout;
        captions->setSpacing(8);
        mBefore = caption(captions, "mSize_Before");
        mAfter = caption(captions, "mSize_After");
        column->addLayout(captions);
        column->addLayout(choices());
        auto* buttons = new QHBoxLayout; // the default last, as in every dialog
        buttons->addStretch(1);
        auto* cancel = new QPushButton(Texts::tr("Cancel"), this);
        cancel->setObjectName("mSize_CancelButton");
        cancel->setAutoDefault(false);
        mSave = new QPushButton(Texts::tr("Save…"), this);
        mSave->setObjectName("mSize_SaveButton");
        mSave->setDefault(true);
        mSave->setEnabled(false);
        buttons->addWidget(cancel);
        buttons->addWidget(mSave);
        column->addLayout(buttons);
        connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
        connect(mSave, &QPushButton::clicked, this, [this] { save(); });
        mRest.setSingleShot(true);
        mRest.setInterval(kRest);
        connect(&mRest, &QTimer::timeout, this, [this] { seek(); });
        mBefore->setText(Texts::tr("Before: %1 × %2").arg(mPicture->pixelsWide()).arg(mPicture->pixelsHigh()));
        recall();
        seek();
    }

private:
    struct Wish {
        SaveFormat format{};
        SizeGoal goal{};
    };
    struct News {
        int trying = 0; ///< a quality, 0 when it is over
        SizedFile file{};
    };
    QLabel* caption(QHBoxLayout* row, const char* name)
    {
        auto* label = new QLabel(this);
        label->setObjectName(name);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        label->setMinimumHeight(2 * label->fontMetrics().lineSpacing()); // the dialog keeps its shape
        row->addWidget(label, 1);
        return label;
    }
    QGridLayout* choices()
    {
        auto* grid = new QGridLayout;
        grid->setHorizontalSpacing(10);
        grid->setVerticalSpacing(8);
        grid->setColumnStretch(2, 1);
        mKind = new QComboBox(this);
        mKind->setObjectName("mSize_Kind");
        mKind->addItems({"JPEG", "WebP"});
        mKind->setToolTip(Texts::tr("WebP files are smaller and keep transparency; older programs cannot open them"));
        auto* label = new QLabel(Texts::tr("&Kind of file:"), this);
        label->setBuddy(mKind);
        grid->addWidget(label, 0, 0, Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(mKind, 0, 1, 1, 2, Qt::AlignLeft);
        const auto goal = [&](int row, SizeGoal::Kind kind, const QString& title, const char* name) {
            auto* button = new QRadioButton(title, this);
            button->setObjectName(name);
            mGoal.addButton(button, int(kind));
            // The longest stands over both columns, so that numbers stay near their words.
            grid->addWidget(button, row, 1, 1, kind == SizeGoal::LooksSame ? 2 : 1);
        };
        const auto field = [&](int row, const char* name, int most, const QString& suffix, const QString& what) {
            auto* box = new QSpinBox(this);
            box->setObjectName(name);
            box->setRange(1, most);
            box->setSuffix(suffix);
            box->setAlignment(Qt::AlignRight);
            box->setAccessibleName(what);
            grid->addWidget(box, row, 2, Qt::AlignLeft);
            connect(box, &QSpinBox::valueChanged, this, [this] { soon(); });
            return box;
        };
        goal(1, SizeGoal::AtMost, Texts::tr("&At most"), "mSize_AtMost");
        mKilobytes = field(1, "mSize_Kilobytes", kMostKilobytes, Texts::tr(" KB"), Texts::tr("Size of the file"));
        goal(2, SizeGoal::LooksSame, Texts::tr("As small as &looks the same"), "mSize_LooksSame");
        goal(3, SizeGoal::Quality, Texts::tr("&Quality"), "mSize_Quality");
        mQuality = field(3, "mSize_QualityField", kBestQuality, {}, Texts::tr("Quality"));
        connect(&mGoal, &QButtonGroup::idClicked, this, [this] { soon(); });
        connect(mKind, &QComboBox::currentIndexChanged, this, [this] { soon(); });
        return grid;
    }
    void recall()
    {
        const auto kept = [](const char* name, int given) { return settings().value(name, given).toInt(); };
        mKind->setCurrentIndex(std::clamp(kept(kKindSetting, 0), 0, int(std::size(kKinds)) - 1));
        QAbstractButton* const button = mGoal.button(kept(kGoalSetting, SizeGoal::LooksSame));
        (button ? button : mGoal.button(SizeGoal::LooksSame))->setChecked(true);
        mKilobytes->setValue(kept(kKilobytesSetting, kFirstKilobytes));
        mQuality->setValue(kept(kQualitySetting, kFirstQuality));
    }
    void remember()
    {
        settings().setValue(kKindSetting, mKind->currentIndex());
        settings().setValue(kGoalSetting, mGoal.checkedId());
        settings().setValue(kKilobytesSetting, mKilobytes->value());
        settings().setValue(kQualitySetting, mQuality->value());
    }
    void soon()
    {
        forget();
        mRest.start();
    }
    void forget()
    {
        mSeeker.forget();
        mFound.reset();
        mSave->setEnabled(false);
        mKilobytes->setEnabled(mGoal.checkedId() == SizeGoal::AtMost);
        mQuality->setEnabled(mGoal.checkedId() == SizeGoal::Quality);
        mAfter->setText(Texts::tr("Searching…"));
    }
    void seek()
    {
        mRest.stop();
        forget();
        constexpr std::size_t kKilo = 1024;
        const SizeGoal goal{.kind = SizeGoal::Kind(mGoal.checkedId()),
                            .bytes = std::size_t(mKilobytes->value()) * kKilo,
                            .quality = mQuality->value()};
        if (!mSeeker.ask({format(), goal})) show({});
    }
    /// On the worker.
    template <typename Turn>
    News found(const Wish& wish, const Turn& turn)
    {
        if (std::exchange(mSearchOf, SaveFormat::None) != wish.format) mSearch.emplace(mPicture, wish.format);
        mSearchOf = wish.format;
        return {.file = mSearch->find(wish.goal, turn.late, [&](int quality) { turn.report({.trying = quality}); })};
    }
    void show(News news)
    {
        if (news.trying > 0) return mAfter->setText(Texts::tr("Trying quality %1…").arg(news.trying));
        mFound = std::move(news.file);
        mSave->setEnabled(!mFound->bytes.empty());
        mView->setRight(mFound->shown);
        if (mFound->bytes.empty())
            return mAfter->setText(mFound->error.empty() ? Texts::tr("There is not enough memory.")
                                                         : QString::fromStdString(mFound->error));
        const auto number = [](double part) { return QLocale().toString(part, 'f', 3); };
        mAfter->setText(
            Texts::tr("After: %1 · %2").arg(formatTitle(format(), mFound->quality), sizeTitle(mFound->bytes.size())) +
            '\n' +
            Texts::tr("Likeness %1, in the worst place %2")
                .arg(number(mFound->likeness.mean), number(mFound->likeness.worst)));
    }
    SaveFormat format() const { return kKinds[mKind->currentIndex()]; }
    void save()
    {
        if (!mFound || mFound->bytes.empty()) return;
        remember();
        if (saveSizedCopy(mDocument, format(), *mFound)) accept();
    }

    Document& mDocument;
    const std::shared_ptr<const BitmapRep> mPicture;
    TwinView* mView = nullptr;
    QLabel *mBefore = nullptr, *mAfter = nullptr;
    QComboBox* mKind = nullptr;
    QButtonGroup mGoal;
    QSpinBox *mKilobytes = nullptr, *mQuality = nullptr;
    QPushButton* mSave = nullptr;
    QTimer mRest;
    std::optional<SizedFile> mFound;         ///< of what is chosen now
    std::optional<SizeSearch> mSearch;       ///< the worker's, as is the next
    SaveFormat mSearchOf = SaveFormat::None; ///< what it holds the picture for
    LatestWish<Wish, News> mSeeker;          // last: it needs the rest
};

} // namespace

void runSizeSaveDialog(Document& document, QWidget* parent)
{
    document.endGesture();
    // Apart from the document's own, which a worker may still be about to write.
    std::shared_ptr<const BitmapRep> picture = copyAsShown(document);
    if (!picture) return beep();
    SizeSaveDialog dialog(document, std::move(picture), parent);
    centerWindow(&dialog, parent);
    dialog.exec();
}
