#include "ui/form_collection.h"

#include <stdexcept>

#include "tests/ui/form_test.h"

namespace korvale {
namespace {

class FormCollectionTest : public FormTest {
 protected:
  RecordingForm dialog_{DialogDesign("frmDialog"), forms_};
  RecordingForm inner_{DialogDesign("frmInner"), forms_};
};

TEST_F(FormCollectionTest, LoadedFormsAreListedInTheOrderOfTheirLoading) {
  dialog_.Load();
  form_.Load();
  inner_.Load();
  dialog_.Unload();
  const std::vector<LoadedForm> list = forms_.List();
  ASSERT_EQ(list.size(), 2U);
  EXPECT_EQ(list[0].name, "frmContract");
  EXPECT_EQ(list[0].handle, form_.Handle());
  EXPECT_EQ(list[1].name, "frmInner");
}

TEST_F(FormCollectionTest, FormsAreFoundIgnoringCase) {
  form_.Load();
  EXPECT_EQ(FormHandle(forms_, "FRMcontract"), form_.Handle());
  EXPECT_EQ(FormHandle(forms_, "frmDialog"), 0);
}

TEST_F(FormCollectionTest, AllButOneAreUnloadedTheLastFirst) {
  form_.Load();
  dialog_.Load();
  inner_.Load();
  forms_.UnloadAllExcept("FRMDIALOG");
  EXPECT_EQ(log_.CallsOf("DestroyWindow"),
            (Lines{"DestroyWindow(frmInner)", "DestroyWindow(frmContract)"}));
  EXPECT_TRUE(dialog_.IsLoaded());
}

TEST_F(FormCollectionTest, AFormThatRefusesDoesNotKeepTheOthers) {
  form_.Load();
  dialog_.Load();
  dialog_.refusesToClose = true;
  forms_.UnloadAllExcept("");
  EXPECT_FALSE(form_.IsLoaded());
  EXPECT_TRUE(dialog_.IsLoaded());
  EXPECT_EQ(dialog_.closeReasons.size(), 1U);
}

TEST_F(FormCollectionTest, OneFormMayUnloadAnother) {
  class Closing : public RecordingForm {
   public:
    Closing(FormCollection& forms, Form& other)
        : RecordingForm(DialogDesign("frmClosing"), forms), other_(other) {}
    void Form_Unload() override { other_.Unload(); }

   private:
    Form& other_;
  };
  Closing closing(forms_, dialog_);
  dialog_.Load();
  closing.Load();
  forms_.UnloadAllExcept("");
  EXPECT_TRUE(forms_.List().empty());
}

TEST_F(FormCollectionTest, AFormShownModallyIsTheTopOne) {
  form_.Show();
  EXPECT_EQ(forms_.TopModal(), nullptr);
  host_.WhenModal("frmDialog", [&](Form& form) {
    EXPECT_EQ(forms_.TopModal(), &form);
    form.Unload();
  });
  dialog_.ShowModal();
  EXPECT_EQ(forms_.TopModal(), nullptr);
}

TEST_F(FormCollectionTest, AFormThatWasDisabledStaysSoAfterAModalOne) {
  form_.Show();
  form_.SetEnabled(false);
  host_.WhenModal("frmDialog", [](Form& form) { form.Unload(); });
  dialog_.ShowModal();
  EXPECT_FALSE(user_.IsEnabled(form_.Handle()));
}

TEST_F(FormCollectionTest, AFormEnabledBelowAModalOneTakesInputAfterIt) {
  form_.Show();
  form_.SetEnabled(false);
  host_.WhenModal("frmDialog", [&](Form& form) {
    form_.SetEnabled(true);
    EXPECT_FALSE(user_.IsEnabled(form_.Handle()));
    form.Unload();
  });
  dialog_.ShowModal();
  EXPECT_TRUE(user_.IsEnabled(form_.Handle()));
}

TEST_F(FormCollectionTest, TheFormsAreEnabledBeforeTheModalWindowGoes) {
  form_.Show();
  host_.WhenModal("frmDialog", [](Form& form) { form.Unload(); });
  log_.Clear();
  dialog_.ShowModal();
  EXPECT_EQ(log_.Calls(), (Lines{"CreateWindowExW(frmDialog)", "EnableWindow(frmContract, false)",
                                 "ShowWindow(frmDialog, SW_SHOW)",
                                 "EnableWindow(frmContract, true)", "DestroyWindow(frmDialog)"}));
}

TEST_F(FormCollectionTest, AModalFormThatGoesBelowAnotherLeavesTheRestBlocked) {
  form_.Show();
  host_.WhenModal("frmDialog", [&](Form& /*dialog*/) {
    host_.WhenModal("frmInner", [&](Form& inner) {
      dialog_.Unload();
      EXPECT_FALSE(user_.IsEnabled(form_.Handle()));
      inner.Unload();
    });
    inner_.ShowModal();
    EXPECT_TRUE(user_.IsEnabled(form_.Handle()));
  });
  dialog_.ShowModal();
  EXPECT_EQ(forms_.TopModal(), nullptr);
}

TEST_F(FormCollectionTest, ABlockedFormMayGo) {
  form_.Show();
  host_.WhenModal("frmDialog", [&](Form& dialog) {
    form_.Unload();
    dialog.Unload();
  });
  dialog_.ShowModal();
  EXPECT_TRUE(forms_.List().empty());
}

TEST_F(FormCollectionTest, AnErrorWhileAModalFormIsShownGivesTheOthersBack) {
  form_.Show();
  dialog_.onLoad = [&] { dialog_.SetTag("loaded"); };
  host_.WhenWaiting([] { throw std::logic_error("out of the loop"); });
  EXPECT_THROW(dialog_.ShowModal(), std::logic_error);
  EXPECT_TRUE(user_.IsEnabled(form_.Handle()));
  EXPECT_EQ(forms_.TopModal(), nullptr);
}

TEST_F(FormCollectionTest, AModalFormMayCloseByItsTimer) {
  host_.SetIdle([&] { return clock_.AdvanceToNextTick(); });
  form_.Show();
  form_.Find("tmrTick").SetInterval(500);
  form_.Find("tmrTick").SetEnabled(true);
  form_.onClick = [&](const std::string&) { dialog_.Unload(); };
  dialog_.ShowModal();
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(FormCollectionTest, ErrorsOfHandlersReachTheReporter) {
  std::string reported;
  forms_.SetUncaughtHandler([&] {
    try {
      throw;
    } catch (const std::runtime_error& error) {
      reported = error.what();
    }
  });
  form_.Show();
  form_.onClick = [](const std::string& name) { throw std::runtime_error(name); };
  Click(form_, "cmdStay");
  EXPECT_EQ(reported, "cmdStay");
}

TEST_F(FormCollectionTest, WithoutAReporterErrorsOfHandlersEndThere) {
  form_.Show();
  form_.onClick = [](const std::string&) { throw std::runtime_error("nobody hears"); };
  Click(form_, "cmdStay");
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
}

}  // namespace
}  // namespace korvale
