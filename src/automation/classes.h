#ifndef ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_
#define ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_

#include "automation/rows.h"

namespace ZQ7Standard::Automation {

// The rows of each public class, without what the headers say.

ClassRow ASCIIObjectEntry();
ClassRow BahtStringObjectEntry();
ClassRow BitByteObjectEntry();
ClassRow CImageInfoEntry();
ClassRow DiskObjectEntry();
ClassRow GridValueObjectEntry();
ClassRow PeripheralObjectEntry();
ClassRow PrintObjectEntry();
ClassRow RegistryObjectEntry();
ClassRow StandardObjectEntry();

// The same for objects that hosts pass to operations.

ClassRow PrintPictureEntry();
ClassRow SerialPortEntry();

// The operations of `StandardObject`, by subsystem.

void AddDateOperations(ClassRow& owner);
void AddNumberOperations(ClassRow& owner);
void AddTextOperations(ClassRow& owner);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_
