#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "main/frmLoto.h"
#include "main/widgets/Picture.h"
#include "platform/Twips.h"
#include "platform/qt/Letters.h"
#include "platform/qt/Look.h"
#include "platform/qt/Style.h"
#include "prerendered/Sizes.h"

// How the main window is built and painted. Lengths are device independent pixels.

using namespace Qt::StringLiterals;

namespace karvenis {
namespace {

constexpr QSize windowArt(760, 560);
constexpr QSize stageSize = prerendered::opening;
constexpr QSize ballSize(112, 112);
constexpr QSize plateSize(76, 36);
constexpr int margin = 16;
constexpr int cellWidth = 120;
constexpr int restTop = 84;
constexpr int plateTop = 210;
constexpr int ballNumber = 30;   // letters on the balls
constexpr int plateNumber = 20;  // and on the plates below them
// Letters may grow by this factor more than their pictures and still fit:
constexpr double ballRoom = 1.1;   // on a ball
constexpr double plateRoom = 1.2;  // on a plate
constexpr double wordRoom = 1.5;   // in the panel
constexpr int tickOfBalls = 20;    // milliseconds
constexpr int tickOfClock = 100;   // milliseconds

QRect scaled(const QRect& place, double growth) {
  return {place.topLeft() * growth, place.size() * growth};
}

/// Where ball `k` comes to rest.
QRect restOf(int k) {
  const int cell = (stageSize.width() - 6 * cellWidth) / 2 + (k - 1) * cellWidth;
  return {QPoint(cell + (cellWidth - ballSize.width()) / 2, restTop), ballSize};
}

/// Where the number below ball `k` stands.
QRect plateOf(int k) {
  return {QPoint(restOf(k).center().x() - plateSize.width() / 2, plateTop), plateSize};
}

/// A picture of a ball, and how far from the ball's rest it is drawn.
struct RollingStep {
  char step;  // 'a' to 'c': rolling; 'd': at rest
  QPoint offset;
};
constexpr RollingStep rollingSteps[] = {
    {'a', QPoint(20, -80)}, {'b', QPoint(12, -58)}, {'c', QPoint(4, -28)}, {'d', QPoint(0, 0)}};

/// Makes `button` the primary button of its window.
void makePrimary(QPushButton* button) {
  button->setProperty(Style::primaryButton, true);
  QPalette colours = button->palette();
  colours.setColor(QPalette::ButtonText, Qt::white);
  button->setPalette(colours);
}

/// Returns `label`, now with bold letters of one colour.
QLabel* boldened(QLabel* label, unsigned colour) {
  QFont bold = label->font();
  bold.setBold(true);
  label->setFont(bold);
  QPalette colours = label->palette();
  colours.setColor(QPalette::WindowText, QColor(colour));
  label->setPalette(colours);
  label->setAlignment(Qt::AlignCenter);
  return label;
}

}  // namespace

frmLoto::frmLoto(Surroundings& around)
    : Form(around.windows), around_(around), animation_(*this, around.state.Drawn) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, margin);
  whole->setSizeConstraint(QLayout::SetFixedSize);
  buildMenus();
  whole->addWidget(buildBanner());
  whole->addLayout(buildStage());
  whole->addLayout(buildPanel());
  buildTimers();
  Picture2 = new Picture(artwork_, u"window.svg"_s, {}, this);
  Picture2->setObjectName(u"Picture2"_s);
  Picture2->hide();
  setCaption(standardTitle);
  growWithLetters(*this, [this](double growth) { grow(growth); });
  Command1->setFocus();
}

void frmLoto::buildMenus() {
  QMenu* file = addMenu("mnuDosya", u"Dosya"_s);
  keyEntry(1, file, "mnuSaveRndColumn", u"Kolunu KARVENIS.RND dosyasına kayıtla (F1)",
           [this] { mnuSaveRndColumn_Click(); });
  keyEntry(2, file, "mnuShowRndList", u"KARVENIS.RND dosyasını göster (F2)",
           [this] { mnuShowRndList_Click(); });
  keyEntry(3, file, "mnuChangeRndFile", u"KARVENIS.RND dosyasının adını değiştir (F3)",
           [this] { mnuChangeRndFile_Click(); });
  keyEntry(4, file, "mnuDeleteRndFile", u"KARVENIS.RND dosyasını sil (F4)",
           [this] { mnuDeleteRndFile_Click(); });

  QMenu* bag = addMenu("mnuBag", u"Torba"_s);
  keyEntry(5, bag, "mnuShowBag", u"Torbayı Göster (F5)", [this] { mnuShowBag_Click(); });
  keyEntry(6, bag, "mnuLoadBag", u"Torbayı KARVENIS.DAT dosyasından yükle (F6)",
           [this] { mnuLoadBag_Click(); });

  QMenu* banko = addMenu("mnuBanko", u"Banko"_s);
  keyEntry(7, banko, "mnuShowBanko", u"Bankoyu Göster (F7)", [this] { mnuShowBanko_Click(); });
  keyEntry(8, banko, "mnuLoadBanko", u"Bankoyu KARVENIS.DAT dosyasından yükle (F8)",
           [this] { mnuLoadBanko_Click(); });

  QMenu* list = addMenu("mnuListe", u"Liste"_s);
  keyEntry(9, list, "mnuShow8Columns", u"8 rastgele kolon listele (F9)",
           [this] { mnuShow8Columns_Click(); });
  keyEntry(11, list, "mnuCreateRndCList", u"Yeni kombinasyon listesi oluştur (F11)",
           [this] { mnuCreateRndCList_Click(); });
  keyEntry(12, list, "mnuShowClist", u"Kombinasyon listesini göster (F12)",
           [this] { mnuShowClist_Click(); });

  QMenu* help = addMenu("mnuHelp", u"Yardım"_s);
  keyEntry(10, help, "mnuFKeys", u"Fonksiyon tuşları (F10)", [this] { mnuFKeys_Click(); });
  addMenuEntry(help, "mnuAbout", u"Program hakkında"_s, [this] { mnuAbout_Click(); });
}

/// Adds a menu entry that the function key `number` triggers too.
void frmLoto::keyEntry(int number, QMenu* menu, const char* entry, QStringView text,
                       std::function<void()> procedure) {
  entries_[number - 1] = addMenuEntry(menu, entry, text.toString(), std::move(procedure));
}

QWidget* frmLoto::buildBanner() {
  strip_ = new QWidget(this);
  Picture3 = new Picture(artwork_, u"banner.svg"_s, {}, strip_);
  Picture3->setObjectName(u"Picture3"_s);
  Picture4 = new Picture(artwork_, u"companion.svg"_s, {}, strip_);
  Picture4->setObjectName(u"Picture4"_s);
  return strip_;
}

void frmLoto::placeBanner() {
  const int left = static_cast<int>(growth_ * banner_.left() / twipsPerPixel);
  Picture3->move(left, 0);
  Picture4->move(left, Picture3->height());
}

QLayout* frmLoto::buildStage() {
  stage_ = new QWidget(this);
  markAsBackground(stage_);
  for (int k = 1; k <= ballsInColumn; ++k) buildBall(k);
  Picture0 = new PictureButton(artwork_, u"opening.svg"_s, stage_);
  Picture0->setObjectName(u"Picture0"_s);
  Picture0->setAccessibleName(u"Açılış resmi"_s);
  guard(Picture0);
  on(Picture0, &PictureButton::clicked, [this] { Picture0_Click(); });
  auto* row = new QHBoxLayout;
  row->setContentsMargins(margin, 0, margin, 0);
  row->addWidget(stage_);
  return row;
}

void frmLoto::buildBall(int k) {
  for (const auto& [step, offset] : rollingSteps) {
    const int index = imageIndex(k, step);
    auto* picture =
        new Picture(artwork_, u"ball.svg"_s, u"p%1-%2"_s.arg(k).arg(QLatin1Char(step)), stage_);
    picture->setObjectName(u"Image1_%1"_s.arg(index));
    picture->setVisible(step == 'd');
    Image1[index] = picture;
  }
  buildLabel(mainLabel(k), look::ink);
  buildLabel(copyLabel(k), look::petrol)->setFrameShape(QFrame::StyledPanel);
}

QLabel* frmLoto::buildLabel(int index, unsigned colour) {
  auto* number = boldened(new QLabel(stage_), colour);
  number->setObjectName(u"Label1_%1"_s.arg(index));
  number->setMouseTracking(true);
  number->installEventFilter(this);
  Label1[index] = number;
  nameLabel(index);
  return number;
}

/// Gives a number label the name that a screen reader says.
void frmLoto::nameLabel(int index) {
  QLabel* number = Label1[index];
  const QString kind = index % 2 == 0 ? u"%1. top: %2"_s : u"%1. sayı: %2"_s;
  const QString value = number->text().isEmpty() ? u"boş"_s : number->text();
  number->setAccessibleName(kind.arg(index / 2 + 1).arg(value));
}

QLayout* frmLoto::buildPanel() {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(margin, 0, margin, 0);
  row->setSpacing(margin);
  row->addWidget(buildChoices());
  Command1 = command("Command1", u"Kolon", u"Yeni Kolon", [this] { Command1_Click(); });
  makePrimary(Command1);
  Command1->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  row->addWidget(Command1, 1);
  row->addWidget(buildClock());
  Command2 = command("Command2", u"Çıkış", u"Kapat", [this] { Command2_Click(); });
  row->addWidget(Command2, 0, Qt::AlignBottom);
  return row;
}

QWidget* frmLoto::buildChoices() {
  Frame1 = control<QFrame>(u"Frame1"_s);
  Frame1->setAccessibleName(u"Kolonun kaynağı ve sırası"_s);
  Frame1->setFrameShape(QFrame::StyledPanel);
  auto* column = new QVBoxLayout(Frame1);
  column->setContentsMargins(14, 8, 14, 8);
  column->setSpacing(5);
  Option1 = control<QRadioButton>(u"Option1"_s, u"Torbadan Çek"_s);
  Option2 = control<QRadioButton>(u"Option2"_s, u"Listeden Çek"_s);
  Check1 = control<QCheckBox>(u"Check1"_s, u"Numara Sırası"_s);
  Option1->setChecked(true);
  on(Check1, &QCheckBox::toggled, [this] { Check1_Click(); });
  column->addWidget(Option1);
  column->addWidget(Option2);
  column->addWidget(Check1);
  return Frame1;
}

QWidget* frmLoto::buildClock() {
  auto* plate = new QWidget(this);
  markAsBackground(plate);
  auto* row = new QHBoxLayout(plate);
  row->setContentsMargins(0, 0, 0, 0);
  Picture1 = new Picture(artwork_, u"emblem.svg"_s, {}, plate);
  Picture1->setObjectName(u"Picture1"_s);
  Picture1->setAccessibleName(u"KARVENIS amblemi"_s);
  row->addWidget(Picture1);
  auto* column = new QVBoxLayout;
  column->setSpacing(2);
  Label2 = boldened(new QLabel(plate), look::muted);
  Label3 = boldened(new QLabel(plate), look::petrol);
  Label2->setObjectName(u"Label2"_s);
  Label3->setObjectName(u"Label3"_s);
  column->addStretch();
  column->addWidget(Label2);
  column->addWidget(Label3);
  column->addStretch();
  row->addLayout(column);
  return plate;
}

void frmLoto::buildTimers() {
  for (int number = 0; number <= ballsInColumn; ++number) {
    QTimer* timer = Timer[number] = new QTimer(this);
    timer->setObjectName(u"Timer%1"_s.arg(number));
    timer->setTimerType(number == 0 ? Qt::CoarseTimer : Qt::PreciseTimer);
    timer->setInterval(number == 0 ? tickOfClock : tickOfBalls);
    on(timer, &QTimer::timeout, [this, number] {
      if (number == 0) {
        Timer0_Timer();
      } else {
        Timer_Timer(number);
      }
    });
  }
  Timer[0]->start();
}

/// Sizes and places the pictures and what stands on them, and the words that grow with the letters.
void frmLoto::grow(double growth) {
  growth_ = growth;
  Picture3->resize(prerendered::banner * growth);
  Picture4->resize(prerendered::companion * growth);
  strip_->setFixedHeight(Picture3->height() + Picture4->height());
  placeBanner();
  stage_->setFixedSize(stageSize * growth);
  Picture0->resize(stage_->size());
  for (int k = 1; k <= ballsInColumn; ++k) placeBall(k);
  Picture1->setFixedSize(prerendered::emblem * growth);
  const double words = std::min(letterGrowth(), wordRoom * growth);
  setLetters(*Command1, 24 * words);
  setLetters(*Label2, 14 * words);
  setLetters(*Label3, 20 * words);
  Label3->setMinimumWidth(qRound(100 * words));
}

void frmLoto::placeBall(int k) {
  for (const auto& [step, offset] : rollingSteps) {
    Image1[imageIndex(k, step)]->setGeometry(scaled(restOf(k).translated(offset), growth_));
  }
  QLabel* number = Label1[mainLabel(k)];
  number->setGeometry(scaled(restOf(k).adjusted(0, 0, 0, -7), growth_));
  setLetters(*number, ballNumber * std::min(letterGrowth(), ballRoom * growth_));
  QLabel* copy = Label1[copyLabel(k)];
  copy->setGeometry(scaled(plateOf(k), growth_));
  setLetters(*copy, plateNumber * std::min(letterGrowth(), plateRoom * growth_));
}

/// Makes the picture of Picture2 the background of the window.
void frmLoto::showBackground() {
  const QSize art = windowArt.scaled(size(), Qt::KeepAspectRatioByExpanding);
  background_ =
      artwork_.pixmap(u"window.svg"_s, {}, art.expandedTo(windowArt), devicePixelRatioF());
  update();
}

bool frmLoto::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove) {
    for (int index = 0; index < Label1.size(); ++index) {
      if (watched == Label1[index]) run([&] { Label1_MouseMove(index); });
    }
  }
  return Form::eventFilter(watched, event);
}

/// Paints the background, and on it the tray with a hollow for each ball.
void frmLoto::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPixmap(0, 0, background_);
  painter.setPen(QColor(look::edge));
  painter.setBrush(QColor(255, 253, 247, 150));
  painter.drawRoundedRect(QRectF(stage_->geometry()).adjusted(0.5, 0.5, -0.5, -0.5),
                          PictureButton::radius, PictureButton::radius);
  painter.setPen(Qt::NoPen);
  for (int k = 1; k <= ballsInColumn; ++k) {
    const QRect hollow = restOf(k).adjusted(12, 88, -12, 2);
    painter.setBrush(QColor(120, 96, 52, 34));
    painter.drawEllipse(scaled(hollow, growth_).translated(stage_->pos()));
  }
}

}  // namespace karvenis
