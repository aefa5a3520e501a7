// Sets the application's identity, which keys the settings store: call it before anything else.
#ifndef STYLE_TARNEL_APP_APPLICATION_INFO_H
#define STYLE_TARNEL_APP_APPLICATION_INFO_H

void set_application_info();

#endif
