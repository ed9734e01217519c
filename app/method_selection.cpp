#include "app/app_delegate.h"
#include "app/method_controls.h"
#include "ports/controls.h"
#include "ports/localisation.h"

namespace calvero {
namespace {

/// The buttons without a name: only that of method `chosen`, if it is one of them, is on.
void turnFurtherMethods(Controls& controls, MethodCatalogue methods, std::int32_t chosen) {
  for (const EraseMethod& method : methods) {
    if (controlsOf(method.number) == nullptr) controls.turnMethod(method.number, method.number == chosen);
  }
}

}  // namespace

// The nine handlers, one for each slot of the method page that bears a name.
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
  static constexpr std::array<Handler, kMethodControls.size()> kHandlers{
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
  if (controlsOf(number) == nullptr) return selectMethod(number);
  (this->*kHandlers.at(static_cast<std::size_t>(number)))();
}

void AppDelegate::selectMethod(std::int32_t number) {
  const EraseMethod& method = methodAt(fixed_.methods, number);
  run_->screen.apply([number, methods = fixed_.methods](Controls& controls) {
    const MethodControls* own = controlsOf(number);
    for (const Control button : kButtonOrder) {
      if (own != nullptr && button == own->button) {
        controls.turnOn(button);
      } else {
        controls.turnOff(button);
      }
    }
    turnFurtherMethods(controls, methods, number);
  });
  choice_.numPassSelected = method.passes;
  choice_.eraseMethodSelected = method.number;
}

void AppDelegate::resetMethodChoice() {
  Controls& controls = ports_.controls;
  controls.turnOn(Control::butFastZeroWipe);
  for (const Control button : kButtonOrder) {
    if (button != Control::butFastZeroWipe) controls.turnOff(button);
  }
  // The first three are set twice: others depend on the sequence of this step.
  controls.turnOn(Control::butFastZeroWipe);
  controls.turnOff(Control::butDOD5220);
  controls.turnOff(Control::butRandomWipe);
  turnFurtherMethods(controls, fixed_.methods, 0);
  choice_.numPassSelected = 1;
  choice_.eraseMethodSelected = 0;
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
  for (const EraseMethod& method : fixed_.methods) {
    const std::string label = localised(method.labelKey);
    if (const MethodControls* own = controlsOf(method.number)) {
      controls.setText(own->label, label);
    } else {
      controls.setMethodText(method.number, label);
    }
  }
}

void AppDelegate::createBuffersForErasing() {
  buffers_.create(ports_.random);
}

const std::uint8_t* AppDelegate::fillBuffer(const std::uint8_t* /*current*/, std::int32_t /*size*/, std::int32_t method,
                                            std::int32_t numPass) const {
  return bufferOf(buffers_, plannedPattern(method, numPass, fixed_.methods));
}

}  // namespace calvero
