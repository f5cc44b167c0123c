#include "comblist/frmComLst.h"

#include "listing/frmCLPrint.h"
#include "windows/KeySoon.h"
#include "windows/ListWindowTest.h"

namespace karvenis {
namespace {

constexpr char missing[] = "Kombinasyon listesi dosyası 'KARVENIS.LST' bulunamadı!";
constexpr char emptyList[] = "Kombinasyon listesi dosyası 'KARVENIS.LST' boş!";
constexpr char unwantedPrompt[] = "İstemediğiniz sayıları (aralarına virgül koyarak) girin.";

struct FilterKey {
  Qt::Key key;
  const char* prompt;
  const char* example;
  const char* typed;
  const char* question;
};

constexpr FilterKey filterKeys[] = {
    {Qt::Key_F5, unwantedPrompt, "örnek: 5,12,30", "6",
     "'6' numaralı topun yer aldığı kolonları silmek istiyormusunuz?"},
    {Qt::Key_F6,
     "İstediğiniz sayıları (aralarına virgül koyarak) girin.\r"
     "(Herhangi biri olan kolonlar seçilecek.)",
     "örnek: 7,20", "7,8,9",
     "'7,8,9' numaralı topların hiç birinin yer almadığı kolonları silmek "
     "istiyormusunuz?"},
    {Qt::Key_F7, "İstemediğiniz ikiliyi (sayıların arasına tire/eksi işareti koyarak) girin.",
     "örnek: 5-12", "7-1",
     "'1-7' numaralı topların (ikisinin de) yer aldığı kolonları silmek istiyormusunuz?"},
    {Qt::Key_F8,
     "En az birinin her bir kombinasyon içinde yer almasını istediğiniz ikililerin sayılarının "
     "arasına tire/eksi koyarak ve ikililerin aralarına virgül koyarak girin.",
     "örnek: 3-7,12-40", "1-8",
     "'1-8'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?"}};

/// The window that the list is opened from.
class Opener final : public Form {
 public:
  explicit Opener(Surroundings& around) : Form(around.windows) {}
  void Form_Activate() override { ++activations; }
  int activations = 0;
};

class FrmComLst : public ListWindowTest {
 protected:
  FrmComLst() : ListWindowTest(combinations) {}

  void SetUp() override {
    add<Opener>("opener");
    add<frmComLst>("frmComLst");
    add<frmCLPrint>("frmCLPrint");
    open("opener");
  }
  std::size_t records() const { return columnsOf(world.files.bytes(combinationList)).size(); }
  void expectNumber(const char* typed) {
    world.boxes.expectBeep().expectInput("Silmek istediğiniz kolon numarasını girin.",
                                         "Kolon SİLME", "0", typed);
  }
  void expectFilter(const char* prompt, const char* example, const char* typed) {
    world.boxes.expectBeep().expectInput(prompt, "Kolon SİLME", "", typed, example);
  }
  void expectUnwanted(const char* typed) { expectFilter(unwantedPrompt, "örnek: 5,12,30", typed); }
};

TEST_F(FrmComLst, CarriesItsDesignTitleUntilTheFirstRedraw) {
  frmComLst window(around);
  EXPECT_EQ(window.caption(), " KOMBİNASYON LİSTESİ  [ F10= YARDIM ]");
}

TEST_F(FrmComLst, WithoutAListTellsOnceAndCloses) {
  world.boxes.expectWarning(missing);
  forms.show("frmComLst");
  EXPECT_EQ(forms.find("frmComLst"), nullptr);
  settle();
  QCoreApplication::processEvents();
  EXPECT_EQ(dynamic_cast<Opener*>(forms.find("opener"))->activations, 2);
}

TEST_F(FrmComLst, OverAnEmptyListTellsAndStays) {
  world.files.folder[combinationList];
  world.boxes.expectWarning(emptyList);
  forms.show("frmComLst");
  list = forms.find("frmComLst");
  ASSERT_NE(list, nullptr);
  EXPECT_TRUE(QTest::qWaitForWindowActive(list));
  EXPECT_EQ(list->caption(), " KOMBİNASYON LİSTESİ  [ F10= YARDIM ]");
  world.boxes.expectWarning(emptyList);
  press(list, Qt::Key_Down);
}

TEST_F(FrmComLst, OverAnEmptyListF1F2AndAClickTellOfIt) {
  openOver(3);
  hold(0);
  world.boxes.expectBeep().expectWarning(emptyList);
  press(list, Qt::Key_F1);
  world.boxes.expectBeep().expectWarning(emptyList);
  press(list, Qt::Key_F2);
  world.boxes.expectWarning(emptyList);
  click(list);
  EXPECT_EQ(forms.find("frmCLPrint"), nullptr);
  EXPECT_FALSE(world.files.exists(randomColumns));
}

TEST_F(FrmComLst, AnOpenOneThatIsShownAgainWithoutItsListTellsAndCloses) {
  openOver(3);
  open("opener");
  world.files.folder.clear();
  world.boxes.expectWarning(missing);
  forms.show("frmComLst");
  settle();
  EXPECT_EQ(forms.find("frmComLst"), nullptr);
}

TEST_F(FrmComLst, AnotherSizeKeepsThePage) {
  openOver(60);
  press(list, Qt::Key_PageDown);
  list->resize(list->size() + QSize(60, 40));
  QCoreApplication::processEvents();
  EXPECT_TRUE(showsFrom(26, 25));
  EXPECT_EQ(list->caption(), pageTitled(2));
}

TEST_F(FrmComLst, EveryKeyShowsTheListAsItIsNow) {
  openOver(30);
  std::int16_t ball = 20;
  const auto redraws = [&](Qt::Key key) {
    world.files.folder[combinationList] =
        columnBytes(std::vector<ColumnRecord>(30, {1, column(1, 2, 3, 4, 5, ++ball)}));
    press(list, key);
    EXPECT_TRUE(shown().back().ends_with("[ 0" + std::to_string(15 + ball) + " ]")) << key;
  };
  for (const Qt::Key key :
       {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Space, Qt::Key_Home,
        Qt::Key_Return, Qt::Key_End, Qt::Key_F9, Qt::Key_A, Qt::Key_Tab}) {
    redraws(key);
  }
  for (const Qt::Key key : {Qt::Key_F11, Qt::Key_F12, Qt::Key_F1}) {
    world.boxes.expectBeep();
    redraws(key);
  }
  forms.find("frmCLPrint")->unload();
  expectNumber("");
  redraws(Qt::Key_F3);
  world.boxes.expectBeep().expectQuestion(combinations.deleteQuestion, false);
  redraws(Qt::Key_F4);
  for (const FilterKey& filter : filterKeys) {
    expectFilter(filter.prompt, filter.example, "");
    redraws(filter.key);
  }
}

TEST_F(FrmComLst, EscClosesWithoutARedraw) {
  openOver(3);
  hold(0);
  press(list, Qt::Key_Escape);
  EXPECT_EQ(forms.find("frmComLst"), nullptr);
}

TEST_F(FrmComLst, F1OpensTheListingAndItsClosingShowsTheFirstPage) {
  openOver(60);
  press(list, Qt::Key_End);
  world.boxes.expectBeep();
  press(list, Qt::Key_F1);
  Form* dialog = forms.find("frmCLPrint");
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(showsFrom(36, 25));
  dialog->unload();
  EXPECT_TRUE(showsFrom(1, 25));
}

TEST_F(FrmComLst, ARefusedCopyDoesNotRedraw) {
  openOver(3);
  world.files.folder[randomColumns];
  world.boxes.expectBeep().expectQuestion(
      "'KARVENIS.LST' dosyasını 'KARVENIS.RND' dosyası olarak kopyelemek istiyormusunuz?\r\r"
      "(Mevcut 'KARVENIS.RND' dosyası silinecek!)",
      false);
  world.boxes.whileOpen = [this] { hold(2); };
  press(list, Qt::Key_F2);
  EXPECT_EQ(shown().size(), 3U);
}

TEST_F(FrmComLst, ACopyRedraws) {
  openOver(3);
  world.boxes.expectBeep().expectMessage(
      "Kombinasyon Listesi Yasak Kombinasyonlar Listesi'ne eklendi.");
  world.boxes.whileOpen = [this] { hold(2); };
  press(list, Qt::Key_F2);
  EXPECT_EQ(shown().size(), 2U);
}

TEST_F(FrmComLst, F3DeletesAndShowsTheColumnThatFollowed) {
  openOver(60);
  expectNumber("10");
  press(list, Qt::Key_F3);
  EXPECT_EQ(records(), 59U);
  EXPECT_TRUE(showsFrom(10, 25));
  EXPECT_TRUE(shown().front().ends_with("16  [ 031 ]")) << "the former eleventh";
}

TEST_F(FrmComLst, F3WithAWrongNumberMovesThePage) {
  openOver(60);
  press(list, Qt::Key_PageDown);
  expectNumber("99");
  press(list, Qt::Key_F3);
  EXPECT_TRUE(showsFrom(36, 25)) << "too large: the last page";
  expectNumber("-9");
  press(list, Qt::Key_F3);
  EXPECT_TRUE(showsFrom(1, 25)) << "negative, or cancelled: the first page";
  EXPECT_EQ(records(), 60U);
}

TEST_F(FrmComLst, F4DeletesTheListAndKeepsThePage) {
  openOver(3);
  world.boxes.expectBeep()
      .expectQuestion(combinations.deleteQuestion, true)
      .expectBeep()
      .expectMessage("'KARVENIS.LST' silindi...");
  press(list, Qt::Key_F4);
  EXPECT_TRUE(world.files.folder.empty());
  EXPECT_EQ(shown().size(), 3U);
  EXPECT_EQ(list->caption(), pageTitled(1));
  press(list, Qt::Key_Down);
  click(list);
  EXPECT_EQ(shown().size(), 3U);
  EXPECT_NE(forms.find("frmComLst"), nullptr);
}

TEST_F(FrmComLst, EachFilterKeyRunsItsFilterAndShowsTheSecondColumn) {
  const std::size_t left[] = {58, 6, 4, 2};
  openOver(60);
  for (std::size_t i = 0; i < 4; ++i) {
    SCOPED_TRACE(filterKeys[i].question);
    expectFilter(filterKeys[i].prompt, filterKeys[i].example, filterKeys[i].typed);
    world.boxes.expectQuestion(filterKeys[i].question, true);
    press(list, filterKeys[i].key);
    EXPECT_TRUE(waitFor([] { return !Application::instance().isDroppingInput(); }));
    EXPECT_EQ(records(), left[i]);
    EXPECT_TRUE(showsFrom(2, std::min<std::size_t>(left[i] - 1, 25)));
    EXPECT_TRUE(list->caption().starts_with(" Kombinasyon Listesi - Sayfa "));
  }
}

TEST_F(FrmComLst, AFilterThatLeavesOneColumnShowsIt) {
  openOver(3);
  expectUnwanted("7,8");
  world.boxes.expectQuestion("'7,8' numaralı topların yer aldığı kolonları silmek istiyormusunuz?",
                             true);
  press(list, Qt::Key_F5);
  EXPECT_TRUE(showsFrom(1, 1));
}

TEST_F(FrmComLst, AFilterThatDeletesAllKeepsThePageUnderTheListsOwnTitle) {
  openOver(3);
  expectUnwanted("1");
  world.boxes.expectQuestion("'1' numaralı topun yer aldığı kolonları silmek istiyormusunuz?",
                             true);
  press(list, Qt::Key_F5);
  EXPECT_FALSE(world.files.exists(combinationList));
  EXPECT_EQ(shown().size(), 3U);
  EXPECT_EQ(list->caption(), " KOMBİNASYON LİSTESİ  [ F10= YARDIM ]");
}

TEST_F(FrmComLst, AnInputThatAsksForNothingKeepsThePage) {
  openOver(60);
  press(list, Qt::Key_PageDown);
  expectUnwanted("");
  press(list, Qt::Key_F5);
  EXPECT_TRUE(showsFrom(26, 25));
  EXPECT_EQ(world.files.folder.size(), 1U);
}

TEST_F(FrmComLst, KeysThatCameDuringAFilterAreNoCommandsAfterIt) {
  openOver(60);
  expectUnwanted("49");
  world.boxes.expectQuestion("'49' numaralı topun yer aldığı kolonları silmek istiyormusunuz?",
                             true);
  world.boxes.whileOpen = [&] { pressSoon(list, Qt::Key_F4); };
  press(list, Qt::Key_F5);
  EXPECT_TRUE(waitFor([] { return !Application::instance().isDroppingInput(); }));
  EXPECT_TRUE(showsFrom(2, 25)) << "nothing asked whether to delete the list";
}

TEST_F(FrmComLst, PaintingReadsNoFile) {
  openOver(60);
  world.files.folder.clear();
  list->repaint();
  EXPECT_TRUE(world.files.folder.empty());
  EXPECT_TRUE(showsFrom(1, 25));
}

}  // namespace
}  // namespace karvenis
