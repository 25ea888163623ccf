-- An editor with the language server, for tests.
local Session = {}
Session.__index = Session

-- Starts the server for a folder; it serves all files in it that are opened from then on.
function Session.start(folder)
  local client = vim.lsp.start_client({
    name = "ostra-params",
    cmd = { vim.env.OSTRA_PARAMS, "lsp" },
    root_dir = folder,
    workspace_folders = { { uri = vim.uri_from_fname(folder), name = "catalogue" } },
  })
  assert(client, "the server does not start")
  vim.api.nvim_create_autocmd("BufReadPost", {
    pattern = folder .. "/*",
    callback = function(event) vim.lsp.buf_attach_client(event.buf, client) end,
  })
  return setmetatable({ client = client, folder = folder }, Session)
end

function Session.await(what, condition)
  assert(vim.wait(20000, condition, 5), what)
end

function Session:edit(file)
  vim.cmd("buffer " .. vim.fn.bufadd(self.folder .. "/" .. file))
  Session.await("the server is not there", function() return vim.lsp.buf_get_clients(0)[self.client] end)
end

function Session:request(method, params)
  local answers, failure = vim.lsp.buf_request_sync(0, method, params, 20000)
  assert(answers, failure)
  local answer = answers[self.client]
  assert(answer and not answer.error, vim.inspect(answer))
  return answer.result
end

-- Returns the actions at a place, which counts from 0.
function Session:actionsAt(line, character)
  local params = vim.lsp.util.make_range_params(0, "utf-16")
  local place = { line = line, character = character }
  params.context = { diagnostics = {} }
  params.range = { start = place, ["end"] = place }
  return self:request("textDocument/codeAction", params)
end

function Session.apply(edit) vim.lsp.util.apply_workspace_edit(edit, "utf-16") end

-- Goes to a text, and returns its place.
function Session.goTo(text)
  assert(vim.fn.search("\\V" .. vim.fn.escape(text, "\\"), "cw") > 0, text .. " is not there")
  return vim.lsp.util.make_position_params(0, "utf-16")
end

function Session:stop()
  vim.lsp.stop_client(self.client)
  Session.await("the server does not stop", function() return vim.lsp.get_client_by_id(self.client) == nil end)
end

-- Runs a test, and leaves with 1 when something is not as it should be.
function Session.run(test)
  local isGood, message = xpcall(test, debug.traceback)
  print(isGood and "good" or message)
  vim.cmd(isGood and "qall!" or "cquit 1")
end

return Session
