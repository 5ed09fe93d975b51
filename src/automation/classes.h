#ifndef ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_
#define ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_

#include <ZQ7Standard/automation/catalogue.h>

namespace ZQ7Standard::Automation {

// The entry of each public class, without what the headers say.

ClassInfo ASCIIObjectEntry();
ClassInfo BahtStringObjectEntry();
ClassInfo BitByteObjectEntry();
ClassInfo CImageInfoEntry();
ClassInfo DiskObjectEntry();
ClassInfo GridValueObjectEntry();
ClassInfo PeripheralObjectEntry();
ClassInfo PrintObjectEntry();
ClassInfo RegistryObjectEntry();
ClassInfo StandardObjectEntry();

// The same of what hosts hand in to operations.

ClassInfo PrintPictureEntry();
ClassInfo SerialPortEntry();

// The operations of `StandardObject`, by subsystem.

void AddDateOperations(ClassInfo& owner);
void AddNumberOperations(ClassInfo& owner);
void AddTextOperations(ClassInfo& owner);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_
