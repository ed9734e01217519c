#include "app/app_delegate.h"
#include "methods/method_catalogue.h"
#include "ports/controls.h"
#include "ports/localisation.h"

namespace calvero {

// The nine handlers, one for each slot of the method page.
void AppDelegate::fastZeroWipe() {
  selectMethod(0);
}
void AppDelegate::randomWipe() {
  selectMethod(1);
}
void AppDelegate::dODWipe() {
  selectMethod(2);
}
void AppDelegate::fourth_NAVSO() {
  selectMethod(3);
}
void AppDelegate::fifth_NATO() {
  selectMethod(4);
}
void AppDelegate::sixth_VSITR_GERMAN() {
  selectMethod(5);
}
void AppDelegate::seventh_FAST_ZERO_WRITE() {
  selectMethod(6);
}
void AppDelegate::eight_PETER_GUTTMAN() {
  selectMethod(7);
}
void AppDelegate::ninth_ALGORITHM() {
  selectMethod(8);
}

void AppDelegate::chooseMethod(std::int32_t number) {
  using Handler = void (AppDelegate::*)();
  static constexpr std::array<Handler, kMethodCount> kHandlers{
      &AppDelegate::fastZeroWipe,
      &AppDelegate::randomWipe,
      &AppDelegate::dODWipe,
      &AppDelegate::fourth_NAVSO,
      &AppDelegate::fifth_NATO,
      &AppDelegate::sixth_VSITR_GERMAN,
      &AppDelegate::seventh_FAST_ZERO_WRITE,
      &AppDelegate::eight_PETER_GUTTMAN,
      &AppDelegate::ninth_ALGORITHM,
  };
  (this->*kHandlers.at(static_cast<std::size_t>(number)))();
}

void AppDelegate::selectMethod(std::int32_t number) {
  const EraseMethod& method = kMethodCatalogue.at(static_cast<std::size_t>(number));
  run_->screen.apply([own = method.button](Controls& controls) {
    for (const Control button : kButtonOrder) {
      if (button == own) {
        controls.turnOn(button);
      } else {
        controls.turnOff(button);
      }
    }
  });
  choice_.numPassSelected = method.passes;
  choice_.eraseMethodSelected = method.number;
}

void AppDelegate::redirectToAlog() {
  if (const auto number = methodFromTag(order_.algo)) chooseMethod(*number);
}

void AppDelegate::setMethodTexts() {
  Controls& controls = ports_.controls;
  controls.setText(Control::selectingWipingMethod, localised("Select wiping method"));
  controls.setText(Control::low, localised("Low"));
  controls.setText(Control::medium, localised("Medium"));
  controls.setText(Control::high, localised("High"));
  for (const EraseMethod& method : kMethodCatalogue) controls.setText(method.label, localised(method.labelKey));
}

void AppDelegate::createBuffersForErasing() {
  buffers_.create(ports_.random);
}

const std::uint8_t* AppDelegate::fillBuffer(const std::uint8_t* /*current*/, std::int32_t /*size*/, std::int32_t method,
                                            std::int32_t numPass) const {
  return bufferOf(buffers_, plannedPattern(method, numPass));
}

}  // namespace calvero
