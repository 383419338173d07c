#include <dlfcn.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <string>

#include "docs/minimal_host.h"

namespace {

template <typename Function>
Function Export(void* module, const char* name) {
  void* const found = dlsym(module, name);
  EXPECT_NE(found, nullptr) << name;
  return reinterpret_cast<Function>(found);
}

QWidget* FormOf(const QString& className) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == className) return widget;
  }
  return nullptr;
}

// The module in the host of the guide, from loading to unloading.
class MinimalHost : public testing::Test {
 protected:
  void SetUp() override {
    module_ = dlopen(NORVIK_MODULE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(module_, nullptr) << dlerror();
    static const norvik_handle kPublicInformation = minimal_host_open(nullptr);
    ASSERT_EQ(Export<norvik_init_module>(module_, "InitModule")(kPublicInformation), 0U);
  }

  void TearDown() override {
    if (!module_) return;
    Export<norvik_release>(module_, "Release")();
    dlclose(module_);
  }

  void Pick(const std::string& item) {
    const std::string request = "<row><ItemName>" + item + "</ItemName></row>";
    Export<norvik_call_func>(module_, "CallFunc")(request.c_str(), 0);
  }

  void* module_ = nullptr;
};

}  // namespace

TEST_F(MinimalHost, RunsOneQuery) {
  Pick("ITEM6066");
  QWidget* const form = FormOf("TfrmNorvikQry");
  ASSERT_NE(form, nullptr);
  EXPECT_TRUE(form->isVisible());
  auto* const query = form->findChild<QAbstractButton*>("m_spdQuery");
  auto* const list = form->findChild<QAbstractItemView*>("m_lvMain");
  ASSERT_TRUE(query && list);
  EXPECT_EQ(list->model()->rowCount(), 0);
  query->click();
  ASSERT_EQ(list->model()->rowCount(), 1);
  const char* const kRow[] = {"1030005200000001", "250,000.00", "In custody"};
  for (int column = 0; column < 3; ++column) {
    const std::string text = list->model()->index(0, column).data().toString().toStdString();
    EXPECT_EQ(text, kRow[column]) << column;
  }
}

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
