#ifndef SAMPLEOPERATORS_H
#define SAMPLEOPERATORS_H

/// An operator database: network 99901 has one operator, 99902 has two, and the operator of 99903
/// has no codes.
const char SAMPLE_OPERATORS[] =
    "<?xml version='1.0'?>\n<serviceproviders format='2.0'><country code='zz'>\n"
    "<provider><name>Alone</name><gsm><network-id mcc='999' mnc='01'/>"
    "<balance-check><ussd>*511#</ussd></balance-check></gsm></provider>\n"
    "<provider><name>First</name><gsm><network-id mcc='999' mnc='02'/>"
    "<balance-check><ussd>*521#</ussd></balance-check></gsm></provider>\n"
    "<provider><name>Second</name><gsm><network-id mcc='999' mnc='02'/>"
    "<balance-check><ussd>*522#</ussd></balance-check></gsm></provider>\n"
    "<provider><name>Silent</name><gsm><network-id mcc='999' mnc='03'/></gsm></provider>\n"
    "</country></serviceproviders>\n";

#endif
