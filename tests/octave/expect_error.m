function expect_error(fn, id, text)
  % expect_error(fn, id[, text]): calls fn and fails unless it raises an
  % error with identifier id (and, when given, exactly the message text).
  try
    fn();
  catch err
    if ~strcmp(err.identifier, id)
      error('test:wrongError', 'expected error id %s, got %s: %s', id, err.identifier, err.message);
    end
    if nargin > 2 && ~strcmp(err.message, text)
      error('test:wrongError', 'expected message "%s", got "%s"', text, err.message);
    end
    return;
  end
  error('test:noError', 'expected error %s, none raised', id);
end
