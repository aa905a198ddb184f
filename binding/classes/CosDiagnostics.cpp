// VOR2.Diagnostics: the process-wide register of named measurements. Every
// script object of it names the one register, which the library owns and
// never destroys.
#include "Diagnostics"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

Value valueOf(Diagnostics::RecordAbs const &record)
{
    switch (record.kind()) {
    case Diagnostics::Kind::Int:
        return Value::int32(static_cast<Diagnostics::Record<int> const &>(record).value());
    case Diagnostics::Kind::Double:
        return Value::scalar(static_cast<Diagnostics::Record<double> const &>(record).value());
    case Diagnostics::Kind::String:
        return Value::string(static_cast<Diagnostics::Record<std::string> const &>(record).value());
    }
    return Value();
}

ClassInfo cosDiagnostics()
{
    ClassBuilder c("VOR2.Diagnostics", ClassKind::Custom, "",
                   "The library's register of named measurements, for its developers. VOR2.Diagnostics() gives "
                   "the one register of the process.");
    c.constructor("", 0, [](Self &, Args const &) {
        return BindingRegistry::instance().announceOwned(&Diagnostics::global(), "VOR2.Diagnostics");
    });
    c.method("getRecord", "The value of the record called name: an int32, a double or a char row; empty when "
                          "there is no such record (asking makes none).")
        .overload("name", 1, [](Self &s, Args const &a) {
            std::string name = toString(a[0]);
            Diagnostics::RecordMap records = s.object<Diagnostics>()->getRecords();
            auto it = records.find(name);
            return it == records.end() ? Value::matrix(0, 0, {}) : valueOf(*it->second);
        });
    c.method("getFields", "The names of every record, in alphabetical order, a cell of char rows.")
        .overload("", 0, [](Self &s, Args const &) {
            std::vector<Value> names;
            for (auto const &record : s.object<Diagnostics>()->getRecords())
                names.push_back(Value::string(record.first));
            return Value::cell(std::move(names));
        });
    return c.build();
}

ClassRegistration registration("VOR2.Diagnostics", &cosDiagnostics);

} // namespace

} // namespace VOR2::script
