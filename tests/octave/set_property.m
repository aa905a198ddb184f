function obj = set_property(obj, name, value)
  % set_property(obj, name, value): obj.(name) = value, as an expression,
  % for use inside anonymous functions given to expect_error.
  obj.(name) = value;
end
