#pragma once

class QString;

namespace tarsil {

/// The face that a name means. Older programs call the characters of one script in a face a face
/// of its own ("Arial Greek", "Times New Roman CE", "Arial (Hebrew)"), which no machine has: the
/// face itself has them. Other names, and names of installed faces, stay as they are.
QString drawnFace(const QString& family);

} // namespace tarsil
