#ifndef ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_
#define ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_

#include "automation/catalogue_rows.h"

namespace ZQ7Standard::Automation {

// The rows of each public class, without what the headers say.

ClassRow ASCIIObjectRows();
ClassRow BahtStringObjectRows();
ClassRow BitByteObjectRows();
ClassRow CImageInfoRows();
ClassRow DiskObjectRows();
ClassRow GridValueObjectRows();
ClassRow PeripheralObjectRows();
ClassRow PrintObjectRows();
ClassRow RegistryObjectRows();
ClassRow StandardObjectRows();

// The same for objects that hosts pass to operations.

ClassRow PrintPictureRows();
ClassRow SerialPortRows();

// The operations of `StandardObject`, by subsystem.

void AddDateOperations(ClassRow& owner);
void AddMachineOperations(ClassRow& owner);
void AddNumberOperations(ClassRow& owner);
void AddTextOperations(ClassRow& owner);
void AddSystemOperations(ClassRow& owner);
void AddNetworkOperations(ClassRow& owner);

}  // namespace ZQ7Standard::Automation

#endif  // ZQ7STANDARD_SRC_AUTOMATION_CLASSES_H_
