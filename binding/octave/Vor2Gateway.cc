// __vor2__: the package's one compiled gateway. Every generated class file
// calls it; it turns Octave's values into border Values and back, runs the
// operation on the library's side (binding/Gateway) and raises the
// library's and the border's errors as Octave errors with their ids.
//
// Operations of its own, besides those of binding/Gateway:
//   __vor2__('pump')            runs the host loop until it is idle
//   __vor2__('pump', seconds)   runs it for that long (input, rendering, tools)
//   __vor2__('hook')            one turn of the loop, for the input event hook
// The first call starts the library (initialize_vor: the host thread is the
// interpreter's, the GUI thread is made for octave-cli or joins the GUI's
// QApplication) and installs the input event hook, so the windows stay live
// while the prompt waits. The gateway then stays loaded (mlock): its objects
// and threads must not lose their code.

#include <octave/oct.h>
#include <octave/cdef-object.h>
#include <octave/interpreter.h>
#include <octave/ov-classdef.h>
#include <octave/parse.h>

#include "Error"
#include "binding/Gateway.h"
#include "binding/HostLoop.h"
#include "binding/ScriptError.h"

#include <string>
#include <vector>

using VOR2::script::Value;

namespace {

Value toValue(octave_value const &ov);

Value objectToValue(octave_value const &ov)
{
    octave::cdef_object object = ov.classdef_object_value()->get_object();
    std::string cls = object.class_name();
    if (object.is_array())
        VOR2::script::raise("VOR2:WrongType", "Expected one " + cls + ", got an array of them");
    if (object.is_handle_object()) {
        octave_value id = object.get("id_");
        return Value::handle(cls, id.is_defined() ? std::uint64_t(id.double_value()) : 0);
    }
    return Value::valueObject(cls, toValue(object.get("state_")));
}

Value numeric(octave_value const &ov, Value::Type type)
{
    NDArray a = ov.array_value();
    if (a.ndims() > 2) VOR2::script::raise("VOR2:WrongType", "Arrays of more than two dimensions are not taken");
    std::vector<double> n(a.data(), a.data() + a.numel());
    Value v = Value::matrix(a.rows(), a.columns(), std::move(n));
    if (type == Value::Type::Double || a.numel() != 1) return v;
    if (type == Value::Type::Logical) return Value::logical(a(0) != 0);
    if (type == Value::Type::Int32) return Value::int32(std::int32_t(a(0)));
    return Value::uint32(std::uint32_t(a(0)));
}

Value toValue(octave_value const &ov)
{
    if (ov.is_undefined()) return Value();
    if (ov.is_classdef_object()) return objectToValue(ov);
    if (ov.is_string()) return Value::string(ov.rows() <= 1 ? ov.string_value() : std::string());
    if (ov.iscell()) {
        Cell c = ov.cell_value();
        std::vector<Value> items;
        for (octave_idx_type i = 0; i < c.numel(); ++i) items.push_back(toValue(c(i)));
        return Value::cell(std::move(items));
    }
    if (ov.isstruct()) {
        octave_scalar_map m = ov.scalar_map_value();
        std::vector<std::pair<std::string, Value>> fields;
        for (auto it = m.begin(); it != m.end(); ++it) fields.emplace_back(m.key(it), toValue(m.contents(it)));
        return Value::structure(std::move(fields));
    }
    if (ov.iscomplex()) VOR2::script::raise("VOR2:WrongType", "Complex numbers are not taken");
    if (ov.islogical()) return numeric(ov, Value::Type::Logical);
    if (ov.is_int32_type()) return numeric(ov, Value::Type::Int32);
    if (ov.is_uint32_type()) return numeric(ov, Value::Type::UInt32);
    if (ov.isnumeric()) return numeric(ov, Value::Type::Double);
    VOR2::script::raise("VOR2:WrongType", "Values of class " + ov.class_name() + " are not taken");
}

octave_value fromValue(Value const &v)
{
    switch (v.type()) {
    case Value::Type::Empty: return Matrix();
    case Value::Type::Double: {
        Matrix m(v.rows(), v.cols());
        std::copy(v.numbers().begin(), v.numbers().end(), m.fortran_vec());
        return m;
    }
    case Value::Type::Logical: return octave_value(v.numbers().empty() ? false : v.numbers()[0] != 0);
    case Value::Type::Int32: return octave_value(octave_int32(v.numbers()[0]));
    case Value::Type::UInt32: return octave_value(octave_uint32(v.numbers()[0]));
    case Value::Type::UInt8: {
        uint8NDArray a(dim_vector(octave_idx_type(v.rows()), octave_idx_type(v.cols()), octave_idx_type(v.pages())));
        std::copy(v.bytes().begin(), v.bytes().end(), a.fortran_vec());
        return a;
    }
    case Value::Type::Char: return octave_value(v.text());
    case Value::Type::Cell: {
        Cell c(1, v.items().size());
        for (std::size_t i = 0; i < v.items().size(); ++i) c(i) = fromValue(v.items()[i]);
        return c;
    }
    case Value::Type::Struct: {
        octave_scalar_map m;
        for (std::size_t i = 0; i < v.items().size(); ++i) m.assign(v.fieldNames()[i], fromValue(v.items()[i]));
        return m;
    }
    case Value::Type::Handle: {
        if (v.id() == 0 && v.numel() == 0) return Matrix();
        octave_scalar_map token;
        token.assign("vor2_id__", double(v.id()));
        return octave::feval(v.className(), octave_value_list(octave_value(token)), 1)(0);
    }
    case Value::Type::ValueObject: {
        octave_scalar_map token;
        token.assign("vor2_state__", fromValue(v.state()));
        return octave::feval(v.className(), octave_value_list(octave_value(token)), 1)(0);
    }
    }
    return Matrix();
}

void start(octave::interpreter &interp)
{
    static bool started = false;
    if (started) return;
    started = true;
    interp.mlock();
    VOR2::script::startHostLoop();
    octave_value_list hook;
    hook(0) = octave_value("__vor2__");
    hook(1) = octave_value("hook");
    octave::feval("add_input_event_hook", hook, 0);
}

} // namespace

DEFMETHOD_DLD(__vor2__, interp, args, nargout,
              "-*- texinfo -*-\n@deftypefn {} {} __vor2__ (@var{op}, @dots{})\n"
              "The VOR2 package's gateway; called by the classes of +VOR2.\n@end deftypefn")
{
    (void)nargout;
    if (args.length() < 1 || !args(0).is_string()) error_with_id("VOR2:UnknownOperation", "__vor2__: no operation");
    std::string op = args(0).string_value();
    std::string errorId, errorText;
    try {
        start(interp);
        if (op == "hook") {
            VOR2::script::runHostLoopFor(0.04);
            return octave_value_list();
        }
        if (op == "pump") {
            if (args.length() > 1) VOR2::script::runHostLoopFor(args(1).double_value());
            else VOR2::script::runHostLoopUntilIdle();
            return octave_value_list();
        }
        std::vector<Value> values;
        values.reserve(args.length() - 1);
        for (int i = 1; i < args.length(); ++i) values.push_back(toValue(args(i)));
        Value result = VOR2::script::gateway(op, values);
        if (op == "release") return octave_value_list();
        // A new object's root constructor keeps only the id or the state.
        if (op == "new" && result.type() == Value::Type::Handle) return octave_value_list(octave_value(double(result.id())));
        if (op == "new" && result.type() == Value::Type::ValueObject) return octave_value_list(fromValue(result.state()));
        return octave_value_list(fromValue(result));
    } catch (VOR2::Error const &e) {
        errorId = e.id();
        errorText = e.text();
    } catch (VOR2::script::ScriptError const &e) {
        errorId = e.id();
        errorText = e.what();
    } catch (octave::execution_exception &) {
        throw;
    } catch (std::exception const &e) {
        errorId = "VOR2:Internal";
        errorText = e.what();
    }
    error_with_id(errorId.c_str(), "%s", errorText.c_str());
}
