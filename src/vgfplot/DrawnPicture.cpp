#include "vgfplot/DrawnPicture.h"

namespace tarsil {

DrawnPicture::~DrawnPicture() = default;

} // namespace tarsil
