#include "terminal/table.h"

#include <gtest/gtest.h>

namespace calvero {
namespace {

TEST(Table, AlignsColumnsByWhatIsSeenAndLeavesNoBlanksAtTheEnd) {
  EXPECT_EQ(table({{"Name"}, {"Size", Align::right}, {"Removable"}},
                  {{"Größe", "1.00 GB", "no"}, {"usb", "900.00 KB", "yes"}}),
            "Name        Size  Removable\n"
            "Größe    1.00 GB  no\n"
            "usb    900.00 KB  yes\n");
}

TEST(Table, WithoutRowsIsItsHeadings) {
  EXPECT_EQ(table({{"Name"}, {"Size", Align::right}}, {}), "Name  Size\n");
}

}  // namespace
}  // namespace calvero
